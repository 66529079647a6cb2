// The typed context and the observer machinery under it: notification order and re-entrancy,
// the slot that holds a weak reference, the null-refusing pointer.

#include "App/Application/ITopManager.h"
#include "Context/IApplicationContext.h"
#include "Events/ComponentSetter.h"
#include "Events/EventHandlerList.h"
#include "Events/NotNull.h"

#include "TestEnvironment.h"

#include <array>
#include <atomic>
#include <cstdlib>
#include <functional>
#include <new>
#include <thread>

using namespace Ostrel;

namespace {

struct Alpha
{
    virtual ~Alpha() = default;
};
struct Beta
{
    virtual ~Beta() = default;
};

using SmallContext = App::IApplicationContext<void, Alpha, Beta>;

// Records every change it hears and runs an optional reaction inside the notification.
class Recorder : public SmallContext::Observer
{
public:
    explicit Recorder(std::vector<std::string>* journal, std::string name)
        : m_journal(journal), m_name(std::move(name))
    {
    }

    void onComponentChanged(const std::shared_ptr<void>&, const std::shared_ptr<void>&) override {}
    void onComponentChanged(const std::shared_ptr<Alpha>& newValue,
                            const std::shared_ptr<Alpha>& oldValue) override
    {
        alphaChanges.emplace_back(newValue, oldValue);
        m_journal->push_back(m_name + ":alpha");
        if (onAlpha)
            onAlpha();
    }
    void onComponentChanged(const std::shared_ptr<Beta>&, const std::shared_ptr<Beta>&) override
    {
        m_journal->push_back(m_name + ":beta");
    }

    std::vector<std::pair<std::shared_ptr<Alpha>, std::shared_ptr<Alpha>>> alphaChanges;
    std::function<void()> onAlpha;

private:
    std::vector<std::string>* m_journal;
    std::string m_name;
};

class Listener : public Core::ComponentSetterObserver
{
public:
    void onSet() override { ++calls; }
    int calls = 0;
};

// A distinct stand-in for each component type of a context, pointing into `storage`: never
// dereferenced, so that the component types may stay incomplete. Returns how many were set.
template <class... Components>
std::size_t setEveryComponent(App::IApplicationContext<void, Components...>& context,
                              const std::shared_ptr<std::array<char, 64>>& storage)
{
    static_assert(sizeof...(Components) < 64);
    std::size_t index = 0;
    context.set(std::shared_ptr<void>(storage, storage->data() + index++));
    (context.set(
         std::shared_ptr<Components>(storage, reinterpret_cast<Components*>(storage->data() + index++))),
     ...);
    return index;
}

template <class... Components>
bool everyComponentIsItsOwn(const App::IApplicationContext<void, Components...>& context,
                            const std::shared_ptr<std::array<char, 64>>& storage)
{
    std::size_t index = 1;
    return context.template get<void>().get() == storage->data() &&
           ((context.template get<Components>().get() ==
             reinterpret_cast<Components*>(storage->data() + index++)) &&
            ...);
}

// Set by a test to make this thread's next allocation fail, as a full heap would.
thread_local bool failNextAllocation = false;

} // namespace

// Every form of the global allocation functions, so that no allocation of the process (Qt's and
// the sanitizers' included) is freed by a function of another family.
void* operator new(std::size_t size)
{
    if (failNextAllocation) {
        failNextAllocation = false;
        throw std::bad_alloc();
    }
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size)
{
    return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return failNextAllocation ? nullptr : std::malloc(size == 0 ? 1 : size);
}
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept
{
    return operator new(size, tag);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

class ContextTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void getNeverSetIsNullAndCreatesNothing()
    {
        SmallContext context;
        QVERIFY(!context.get<Alpha>());
        QCOMPARE(context.componentCount(), std::size_t(0));
        // Null over an absent component is "the same pointer": nothing stored, nobody told.
        std::vector<std::string> journal;
        Recorder recorder(&journal, "r");
        context.RegisterEventHandler(&recorder);
        context.set<Alpha>(nullptr);
        QCOMPARE(context.componentCount(), std::size_t(0));
        QVERIFY(journal.empty());
    }

    void setTellsNewThenOldAndStoresBeforeTelling()
    {
        SmallContext context;
        std::vector<std::string> journal;
        Recorder recorder(&journal, "r");
        context.RegisterEventHandler(&recorder);

        const auto first = std::make_shared<Alpha>();
        const auto second = std::make_shared<Alpha>();
        std::shared_ptr<Alpha> seenInside;
        recorder.onAlpha = [&]() { seenInside = context.get<Alpha>(); };

        context.set<Alpha>(first);
        context.set<Alpha>(first); // same pointer: silent
        context.set<Alpha>(second);
        context.set<Alpha>(nullptr);

        QCOMPARE(recorder.alphaChanges.size(), std::size_t(3));
        QCOMPARE(recorder.alphaChanges[0].first, first);
        QVERIFY(!recorder.alphaChanges[0].second);
        QCOMPARE(recorder.alphaChanges[1].first, second);
        QCOMPARE(recorder.alphaChanges[1].second, first);
        QVERIFY(!recorder.alphaChanges[2].first);
        QCOMPARE(recorder.alphaChanges[2].second, second);
        QVERIFY(!seenInside); // the context held the new (null) value while the observer ran
        QCOMPARE(context.componentCount(), std::size_t(1)); // a stored null still has its node
    }

    // The fetch goes through an index by type: it must follow replacements of either type in
    // any order, each replacement leaving one node.
    void indexFollowsInterleavedReplacements()
    {
        SmallContext context;
        const auto a1 = std::make_shared<Alpha>();
        const auto a2 = std::make_shared<Alpha>();
        const auto b1 = std::make_shared<Beta>();
        context.set<Alpha>(a1);
        context.set<Beta>(b1);
        context.set<Alpha>(a2);
        QCOMPARE(context.get<Alpha>(), a2);
        QCOMPARE(context.get<Beta>(), b1);
        context.set<Beta>(nullptr);
        context.set<Alpha>(a1);
        QCOMPARE(context.get<Alpha>(), a1);
        QVERIFY(!context.get<Beta>());
        QCOMPARE(context.componentCount(), std::size_t(2));
    }

    void replacementThatCannotBeStoredKeepsTheOldComponent()
    {
        SmallContext context;
        const auto kept = std::make_shared<Alpha>();
        const auto replacement = std::make_shared<Alpha>();
        context.set<Alpha>(kept);
        failNextAllocation = true;
        QVERIFY_EXCEPTION_THROWN(context.set<Alpha>(replacement), std::bad_alloc);
        QCOMPARE(context.get<Alpha>(), kept);
        QCOMPARE(context.componentCount(), std::size_t(1));
    }

    void observerOrderDuplicatesAndRemovalDuringNotification()
    {
        SmallContext context;
        std::vector<std::string> journal;
        Recorder first(&journal, "first");
        Recorder second(&journal, "second");
        Recorder late(&journal, "late");
        context.RegisterEventHandler(&first);
        context.RegisterEventHandler(&second);
        context.RegisterEventHandler(&first); // registered once only
        context.RegisterEventHandler(nullptr);

        // The first removes the second and adds a late one: the notification in progress walks its
        // copy, so the second still hears it and the late one does not.
        first.onAlpha = [&]() {
            context.UnregisterEventHandler(&second);
            context.RegisterEventHandler(&late);
        };
        context.set<Alpha>(std::make_shared<Alpha>());
        QCOMPARE(journal, (std::vector<std::string>{"first:alpha", "second:alpha"}));

        journal.clear();
        first.onAlpha = nullptr;
        context.set<Alpha>(std::make_shared<Alpha>());
        QCOMPARE(journal, (std::vector<std::string>{"first:alpha", "late:alpha"}));
    }

    void reentrantSetFromAnObserverRunsToItsEndInside()
    {
        SmallContext context;
        std::vector<std::string> journal;
        Recorder first(&journal, "first");
        Recorder second(&journal, "second");
        context.RegisterEventHandler(&first);
        context.RegisterEventHandler(&second);
        first.onAlpha = [&]() { context.set<Beta>(std::make_shared<Beta>()); };

        context.set<Alpha>(std::make_shared<Alpha>());
        QCOMPARE(journal,
                 (std::vector<std::string>{"first:alpha", "first:beta", "second:beta", "second:alpha"}));
        QVERIFY(context.get<Beta>());
    }

    void throwingObserverStopsTheNotification()
    {
        SmallContext context;
        std::vector<std::string> journal;
        Recorder thrower(&journal, "thrower");
        Recorder after(&journal, "after");
        context.RegisterEventHandler(&thrower);
        context.RegisterEventHandler(&after);
        thrower.onAlpha = []() { throw std::runtime_error("observer failed"); };

        QVERIFY_EXCEPTION_THROWN(context.set<Alpha>(std::make_shared<Alpha>()), std::runtime_error);
        QCOMPARE(journal, std::vector<std::string>{"thrower:alpha"});
        QVERIFY(context.get<Alpha>()); // stored before anyone was told
    }

    void notificationsFromTwoThreadsDoNotInterleave()
    {
        struct Probe
        {
            virtual ~Probe() = default;
            virtual void call() = 0;
        };
        struct Counter : Probe
        {
            std::atomic<int> inside{0};
            std::atomic<int> overlaps{0};
            void call() override
            {
                if (++inside > 1)
                    ++overlaps;
                std::this_thread::yield();
                --inside;
            }
        };
        Core::EventHandlerList<Probe> list;
        Counter a, b;
        list.RegisterEventHandler(&a);
        list.RegisterEventHandler(&b);
        auto notifyMany = [&]() {
            for (int i = 0; i < 2000; ++i)
                list.Notify(&Probe::call);
        };
        std::thread one(notifyMany), two(notifyMany);
        one.join();
        two.join();
        QCOMPARE(a.overlaps.load() + b.overlaps.load(), 0);
    }

    void componentSetterKeepsOnlyAWeakReference()
    {
        Core::ComponentSetter<Alpha> setter;
        Listener listener;
        setter.RegisterEventHandler(&listener);
        QVERIFY(!setter.IsSet());

        auto value = std::make_shared<Alpha>();
        setter.set(value);
        setter.set(value);
        QCOMPARE(listener.calls, 1);
        QVERIFY(setter.IsSet());
        QCOMPARE(setter.get(), value);

        value.reset();
        QVERIFY(!setter.IsSet());
        QVERIFY(!setter.get());

        setter.UnregisterEventHandler(&listener);
        setter.set(std::make_shared<Alpha>());
        QCOMPARE(listener.calls, 1);
    }

    void notNullRefusesNullWithItsMessage()
    {
        try {
            Core::NotNull<std::shared_ptr<Alpha>> pointer{std::shared_ptr<Alpha>()};
            QFAIL("a null pointer was accepted");
        } catch (const std::logic_error& error) {
            QCOMPARE(QString::fromLatin1(error.what()),
                     QStringLiteral("NotNull can not initialized by null"));
        }
        const auto alpha = std::make_shared<Alpha>();
        const Core::NotNull<std::shared_ptr<Alpha>> pointer(alpha);
        QCOMPARE(static_cast<const std::shared_ptr<Alpha>&>(pointer), alpha);
    }

    void productContextWalksEveryComponent()
    {
        App::ITopManager top;
        top.fetchAllComponents();
        QCOMPARE(top.componentCount(), std::size_t(0));

        const auto storage = std::make_shared<std::array<char, 64>>();
        const std::size_t count = setEveryComponent(top, storage);
        QCOMPARE(top.componentCount(), count);
        top.fetchAllComponents();
        QCOMPARE(top.componentCount(), count);
        QVERIFY(everyComponentIsItsOwn(top, storage));
    }
};

OSTREL_TEST_MAIN(ContextTest)
#include "tst_context.moc"
