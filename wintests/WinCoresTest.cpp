// The Win32 cores of the shell's Windows seams, run on Windows or under Wine. The program starts
// copies of itself as the other processes a case needs (see childMain()).
#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include "App/Application/Extensions/Tyfi/OwnWindowCheckCore_win.h"
#include "App/Application/Gesture/IPlatformApi.h"
#include "App/Application/ProcessMapCore_win.h"
#include "Foundation/DyLibCore_win.h"
#include "Foundation/NamedMutexCore_win.h"
#include "Foundation/RegistryCore_win.h"
#include "Foundation/SystemFactsCore_win.h"
#include "Ipc/NamedPipeCore_win.h"
#include "Ipc/UserIdentityCore_win.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <string>
#include <vector>

using namespace Ostrel::Win32;

namespace {

// Every wait of a case is bounded by this, so that a fault fails in seconds instead of hanging.
constexpr DWORD Bound = 15000;

std::wstring ownPath()
{
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

std::wstring uniqueName(const wchar_t* what)
{
    return std::wstring(L"OstrelWinTest-") + what + L'-' + std::to_wstring(::GetCurrentProcessId());
}

// A copy of this program in one of the child roles, ended (killed if need be) when it goes.
struct Child
{
    PROCESS_INFORMATION info = {};

    explicit Child(const std::wstring& arguments)
    {
        std::wstring line = L'"' + ownPath() + L"\" " + arguments;
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        REQUIRE(::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                                 &info));
    }
    ~Child()
    {
        if (!info.hProcess)
            return;
        ::TerminateProcess(info.hProcess, 1);
        ::WaitForSingleObject(info.hProcess, Bound);
        close();
    }
    void close()
    {
        ::CloseHandle(info.hThread);
        ::CloseHandle(info.hProcess);
        info = {};
    }
    DWORD exitCode()
    {
        REQUIRE(::WaitForSingleObject(info.hProcess, Bound) == WAIT_OBJECT_0);
        DWORD code = 0;
        ::GetExitCodeProcess(info.hProcess, &code);
        return code;
    }
    // Waits until the child has set `event`; false when it ended first.
    bool signals(HANDLE event)
    {
        HANDLE both[] = {event, info.hProcess};
        return ::WaitForMultipleObjects(2, both, FALSE, Bound) == WAIT_OBJECT_0;
    }
};

struct Event
{
    std::wstring name;
    HANDLE handle;
    explicit Event(const wchar_t* what)
        : name(uniqueName(what)), handle(::CreateEventW(nullptr, TRUE, FALSE, name.c_str()))
    {
    }
    ~Event() { ::CloseHandle(handle); }
};

std::wstring machineId()
{
    return ReadRegistryText(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Cryptography", L"MachineGuid").text;
}

HWND makeWindow()
{
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = &::DefWindowProcW;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.lpszClassName = L"OstrelWinTest";
    ::RegisterClassW(&windowClass);
    HWND window = ::CreateWindowExW(0, L"OstrelWinTest", L"OstrelWinTest", WS_OVERLAPPEDWINDOW, 50, 60, 300,
                                    200, nullptr, nullptr, windowClass.hInstance, nullptr);
    INFO("no window can be made: the program needs a display (the script runs it under Xvfb)");
    REQUIRE(window);
    return window;
}

// The child roles: `hold <mutex> <ready> <quit>` holds the mutex until `quit` is set, then
// releases it, or ends without doing so with `leave` in place of `hold`; `idle <ready> <quit>`
// waits; `machine-id <file>` writes the machine id to the file.
int childMain(int argc, wchar_t** argv)
{
    const std::wstring role = argv[1];
    if ((role == L"hold" || role == L"leave") && argc == 5) {
        const MutexClaim claim = ClaimNamedMutex(argv[2]);
        if (claim.state != MutexClaimState::Held && claim.state != MutexClaimState::HeldAbandoned)
            return 2;
        HANDLE ready = ::OpenEventW(EVENT_MODIFY_STATE, FALSE, argv[3]);
        HANDLE quit = ::OpenEventW(SYNCHRONIZE, FALSE, argv[4]);
        ::SetEvent(ready);
        ::WaitForSingleObject(quit, Bound);
        if (role == L"hold")
            ReleaseNamedMutex(claim.handle);
        return 0;
    }
    if (role == L"idle" && argc == 4) {
        ::SetEvent(::OpenEventW(EVENT_MODIFY_STATE, FALSE, argv[2]));
        ::WaitForSingleObject(::OpenEventW(SYNCHRONIZE, FALSE, argv[3]), Bound);
        return 0;
    }
    if (role == L"machine-id" && argc == 3) {
        const std::wstring id = machineId();
        HANDLE file = ::CreateFileW(argv[2], GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        ::WriteFile(file, id.data(), static_cast<DWORD>(id.size() * sizeof(wchar_t)), &written, nullptr);
        ::CloseHandle(file);
        return 0;
    }
    return 3;
}

// One line per case with its outcome, whatever the reporter prints.
struct CaseLog : doctest::IReporter
{
    std::string name;
    explicit CaseLog(const doctest::ContextOptions&) {}
    void report_query(const doctest::QueryData&) override {}
    void test_run_start() override {}
    void test_run_end(const doctest::TestRunStats&) override {}
    void test_case_start(const doctest::TestCaseData& data) override { name = data.m_name; }
    void test_case_reenter(const doctest::TestCaseData&) override {}
    void test_case_end(const doctest::CurrentTestCaseStats& stats) override
    {
        std::printf("wintest: %-6s %s\n", stats.testCaseSuccess ? "ok" : "FAILED", name.c_str());
        std::fflush(stdout);
    }
    void test_case_exception(const doctest::TestCaseException&) override {}
    void subcase_start(const doctest::SubcaseSignature&) override {}
    void subcase_end() override {}
    void log_assert(const doctest::AssertData&) override {}
    void log_message(const doctest::MessageData&) override {}
    void test_case_skipped(const doctest::TestCaseData&) override {}
};
REGISTER_LISTENER("cases", 1, CaseLog);

} // namespace

TEST_CASE("named mutex: one process holds it, another is refused until the first lets go")
{
    const std::wstring mutex = uniqueName(L"mutex");
    Event ready(L"ready"), quit(L"quit");
    const std::wstring roles = mutex + L' ' + ready.name + L' ' + quit.name;

    SUBCASE("released on exit: free again")
    {
        Child holder(L"hold " + roles);
        REQUIRE(holder.signals(ready.handle));
        CHECK(ClaimNamedMutex(mutex).state == MutexClaimState::Taken);
        ::SetEvent(quit.handle);
        CHECK(holder.exitCode() == 0);
        const MutexClaim claim = ClaimNamedMutex(mutex);
        CHECK(claim.state == MutexClaimState::Held);
        ReleaseNamedMutex(claim.handle);
    }
    SUBCASE("holder killed or ended without releasing: abandoned, taken, and said so")
    {
        for (const bool kill : {true, false}) {
            CAPTURE(kill);
            ::ResetEvent(ready.handle);
            ::ResetEvent(quit.handle);
            Child holder(L"leave " + roles);
            REQUIRE(holder.signals(ready.handle));
            CHECK(ClaimNamedMutex(mutex).state == MutexClaimState::Taken);
            // A mutex nobody has open any more is gone, not abandoned: another instance waiting
            // on it is what keeps it, as this handle does.
            HANDLE waiting = ::OpenMutexW(SYNCHRONIZE, FALSE, mutex.c_str());
            REQUIRE(waiting);
            if (kill)
                ::TerminateProcess(holder.info.hProcess, 9);
            else
                ::SetEvent(quit.handle);
            holder.exitCode();
            const MutexClaim claim = ClaimNamedMutex(mutex);
            CHECK(claim.state == MutexClaimState::HeldAbandoned);
            CHECK(claim.handle != nullptr);
            ReleaseNamedMutex(claim.handle);
            ::CloseHandle(waiting);
        }
    }
    SUBCASE("a name the system refuses fails with its error")
    {
        const MutexClaim claim = ClaimNamedMutex(L"NoSuchNamespace\\" + mutex);
        CHECK(claim.state == MutexClaimState::Failed);
        CHECK(claim.error != 0);
        CHECK(claim.handle == nullptr);
    }
}

TEST_CASE("process map: finds its own child by path, and a child that ended has none")
{
    Event ready(L"started"), quit(L"idle");
    Child child(L"idle " + ready.name + L' ' + quit.name);
    const DWORD pid = child.info.dwProcessId;
    // Until it runs its own code, a new process has no executable to read.
    REQUIRE(child.signals(ready.handle));

    const auto ids = ProcessIds();
    REQUIRE(ids);
    CHECK(std::count(ids->begin(), ids->end(), pid) == 1);
    const ProcessImage image = ProcessImagePath(pid);
    CHECK(image.error == ERROR_SUCCESS);
    const std::wstring own = ownPath();
    CHECK(::CompareStringOrdinal(image.path.c_str(), static_cast<int>(image.path.size()), own.c_str(),
                                 static_cast<int>(own.size()), TRUE) == CSTR_EQUAL);

    // Listed, then gone before it is opened.
    ::SetEvent(quit.handle);
    CHECK(child.exitCode() == 0);
    child.close();
    const ProcessImage gone = ProcessImagePath(pid);
    CHECK(gone.path.empty());
    CHECK(gone.error != ERROR_SUCCESS);
}

TEST_CASE("DyLib: the DPI function of shcore.dll is found, a missing function or library is not")
{
    DWORD error = 0;
    HMODULE shcore = LoadDyLib("Shcore.dll", &error);
    REQUIRE(shcore);
    // The DPI fix calls it with 0, "unaware": the system then scales the windows.
    void* found = FindDyLibSymbol(shcore, "SetProcessDpiAwareness", &error);
    REQUIRE(found != nullptr);
    using SetProcessDpiAwarenessFn = HRESULT(WINAPI*)(int);
    const HRESULT set = reinterpret_cast<SetProcessDpiAwarenessFn>(found)(0);
    CHECK((SUCCEEDED(set) || set == E_ACCESSDENIED));
    CHECK(FindDyLibSymbol(shcore, "OstrelNoSuchFunction", &error) == nullptr);
    CHECK(error == ERROR_PROC_NOT_FOUND);
    FreeDyLib(shcore);

    for (const char* name : {"ostrel-no-such-library.dll", "", "bad\xff.dll"}) {
        CAPTURE(name);
        error = 0;
        CHECK(LoadDyLib(name, &error) == nullptr);
        CHECK(error != 0);
    }
}

TEST_CASE("visible window: found once shown, not while hidden, not for another process")
{
    HWND window = makeWindow();
    const DWORD self = ::GetCurrentProcessId();
    // A window that never shows is never taken for the page.
    CHECK_FALSE(HasVisibleTopLevelWindow(self));
    ::ShowWindow(window, SW_SHOWNORMAL);
    CHECK(HasVisibleTopLevelWindow(self));
    // The waiter stopped meanwhile: the search gives up instead of reporting.
    const std::atomic<bool> stopped{false};
    CHECK_FALSE(HasVisibleTopLevelWindow(self, &stopped));

    Event ready(L"windowless"), quit(L"windowless-quit");
    Child windowless(L"idle " + ready.name + L' ' + quit.name);
    REQUIRE(windowless.signals(ready.handle));
    CHECK_FALSE(HasVisibleTopLevelWindow(windowless.info.dwProcessId));
    ::SetEvent(quit.handle);
    ::DestroyWindow(window);
}

TEST_CASE("registry and machine id: stable across processes, wrong type or missing is an error")
{
    const std::wstring id = machineId();
    CHECK(id.size() == 36);

    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    const std::wstring file = folder + uniqueName(L"id") + L".txt";
    Child reader(L"machine-id \"" + file + L'"');
    REQUIRE(reader.exitCode() == 0);
    HANDLE handle = ::CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    REQUIRE(handle != INVALID_HANDLE_VALUE);
    wchar_t text[64] = {};
    DWORD read = 0;
    ::ReadFile(handle, text, sizeof(text) - sizeof(wchar_t), &read, nullptr);
    ::CloseHandle(handle);
    ::DeleteFileW(file.c_str());
    CHECK(std::wstring(text) == id);

    const std::wstring key = L"Software\\" + uniqueName(L"key");
    const DWORD number = 42;
    REQUIRE(::RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"number", REG_DWORD, &number,
                              sizeof(number)) == 0);
    const wchar_t long_[] = L"a value longer than the first guess of any buffer: 0123456789abcdef0123456789";
    REQUIRE(::RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"text", REG_SZ, long_, sizeof(long_)) == 0);
    CHECK(ReadRegistryText(HKEY_CURRENT_USER, key, L"text").text == long_);
    const RegistryText wrongType = ReadRegistryText(HKEY_CURRENT_USER, key, L"number");
    CHECK(wrongType.error == ERROR_UNSUPPORTED_TYPE);
    CHECK(wrongType.text.empty());
    CHECK(ReadRegistryText(HKEY_CURRENT_USER, key, L"missing").error == ERROR_FILE_NOT_FOUND);
    CHECK(ReadRegistryText(HKEY_CURRENT_USER, key + L"\\missing", L"text").error == ERROR_FILE_NOT_FOUND);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str());
}

TEST_CASE("system facts: a 64-bit system with memory and a trimmed processor name")
{
    CHECK(OsBits() == 64);
    CHECK(TotalPhysicalMemory() > 0);
    const std::wstring cpu = CpuModelName();
    CHECK_FALSE(cpu.empty());
    CHECK(cpu.front() != L' ');
    CHECK(cpu.back() != L' ');
}

TEST_CASE("user key of the lock and pipe names: session and SID, never a name without the user")
{
    DWORD session = 0;
    ::ProcessIdToSessionId(::GetCurrentProcessId(), &session);
    const std::wstring sid = ProcessUserSid(::GetCurrentProcess());
    REQUIRE(sid.rfind(L"S-1-", 0) == 0);
    const std::wstring key = CurrentUserKey();
    CHECK(key == std::to_wstring(session) + L'-' + sid);

    HANDLE own = nullptr;
    REQUIRE(::OpenProcessToken(::GetCurrentProcess(), TOKEN_ALL_ACCESS, &own));
    HANDLE other = nullptr;
    REQUIRE(::DuplicateTokenEx(own, TOKEN_ALL_ACCESS, nullptr, SecurityImpersonation, TokenPrimary, &other));
    DWORD otherSession = session + 1;
    ::SetTokenInformation(other, TokenSessionId, &otherSession, sizeof(otherSession));
    DWORD actual = 0, size = 0;
    ::GetTokenInformation(other, TokenSessionId, &actual, sizeof(actual), &size);
    if (actual == session)
        MESSAGE("the system keeps the session of a token (Wine does): two sessions can't be compared here");
    else
        CHECK(TokenUserKey(other) != key);
    ::CloseHandle(other);
    ::CloseHandle(own);

    // Another user: where the system gives a token for one, its key differs; where the token it
    // gives has no readable user (Wine's), the key is refused rather than made without the SID.
    HANDLE logon = nullptr;
    if (::LogonUserW(L"OstrelWinTestOther", L".", L"-", LOGON32_LOGON_INTERACTIVE, LOGON32_PROVIDER_DEFAULT,
                     &logon)) {
        DWORD error = 0;
        const std::wstring otherKey = TokenUserKey(logon, &error);
        if (otherKey.empty()) {
            MESSAGE("the system's token for another user has no readable user (Wine's): checked the refusal");
            CHECK(error != 0);
        } else {
            CHECK(otherKey != key);
        }
        ::CloseHandle(logon);
    } else {
        MESSAGE("no token for another user here (error " << ::GetLastError() << ")");
    }
    DWORD error = 0;
    CHECK(TokenUserKey(nullptr, &error).empty());
    CHECK(error != 0);
}

TEST_CASE("request pipe: the first instance is exclusive, a client finds its own user's server")
{
    const std::wstring name = L"\\\\.\\pipe\\" + uniqueName(L"pipe");
    DWORD error = 0;
    PSECURITY_DESCRIPTOR descriptor = UserOnlyDescriptor(ProcessUserSid(::GetCurrentProcess()), &error);
    REQUIRE(descriptor);
    CHECK(UserOnlyDescriptor(L"", &error) == nullptr);

    // Nobody listens yet: refused at once, not after the wait.
    CHECK(ConnectPipe(name, Bound, &error) == INVALID_HANDLE_VALUE);
    CHECK(error == ERROR_FILE_NOT_FOUND);

    HANDLE server = CreatePipeInstance(name, descriptor, true, &error);
    REQUIRE(server != INVALID_HANDLE_VALUE);
    // Whoever made the name first keeps it: a second first instance is refused, a further one is not.
    HANDLE second = CreatePipeInstance(name, descriptor, true, &error);
    if (second == INVALID_HANDLE_VALUE) {
        CHECK(error == ERROR_ACCESS_DENIED);
    } else {
        MESSAGE(
            "the system makes a second first instance (Wine does): the client's check of the server's user "
            "is what stands");
        ::CloseHandle(second);
    }

    HANDLE client = ConnectPipe(name, Bound, &error);
    REQUIRE(client != INVALID_HANDLE_VALUE);
    CHECK(PipeServerIsCurrentUser(client));
    // The only instance is taken: a second client waits, then gives up.
    CHECK(ConnectPipe(name, 100, &error) == INVALID_HANDLE_VALUE);
    CHECK(error == ERROR_PIPE_BUSY);
    ::CloseHandle(client);

    HANDLE further = CreatePipeInstance(name, descriptor, false, &error);
    CHECK(further != INVALID_HANDLE_VALUE);
    ::CloseHandle(further);
    ::CloseHandle(server);
    ::LocalFree(descriptor);
}

TEST_CASE("gestures: the window calls, and the default handling where gestures are not supported")
{
    using Ostrel::App::Gesture;
    Gesture::IPlatformApi& api = Gesture::IPlatformApi::system();
    HWND window = makeWindow();

    // Position conversion is what the decoder relies on, gestures or not.
    POINT origin = {0, 0};
    ::ClientToScreen(window, &origin);
    Gesture::IPlatformApi::Point point = {origin.x + 7, origin.y + 11};
    CHECK(api.ScreenToClient(window, &point));
    CHECK(point.x == 7);
    CHECK(point.y == 11);
    CHECK(api.GetParent(window) == nullptr);

    Gesture::IPlatformApi::ConfigEntry all = {0, GC_ALLGESTURES, 0};
    if (api.SetGestureConfig(window, 0, 1, &all, sizeof(all))) {
        MESSAGE("gesture configuration accepted");
    } else {
        const DWORD error = ::GetLastError();
        MESSAGE("the system does not support gestures (SetGestureConfig error " << error
                                                                                << "): checked the fallback");
        CHECK(error == ERROR_CALL_NOT_IMPLEMENTED);
    }
    // The fallback: a gesture that can't be read is left to the default handling, which takes it.
    Gesture::IPlatformApi::Info info = {};
    info.size = sizeof(GESTUREINFO);
    CHECK_FALSE(api.GetGestureInfo(nullptr, &info));
    CHECK(api.DefWindowProcW(window, WM_GESTURE, nullptr, nullptr) == 0);
    ::DestroyWindow(window);
}

int wmain(int argc, wchar_t** argv)
{
    if (argc > 1 && argv[1][0] != L'-')
        return childMain(argc, argv);
    doctest::Context context;
    // doctest reads narrow options; ours are plain ASCII.
    std::vector<std::string> options;
    for (int i = 0; i < argc; ++i)
        options.emplace_back(argv[i], argv[i] + wcslen(argv[i]));
    std::vector<const char*> pointers;
    for (const std::string& option : options)
        pointers.push_back(option.c_str());
    context.applyCommandLine(static_cast<int>(pointers.size()), pointers.data());
    return context.run();
}
