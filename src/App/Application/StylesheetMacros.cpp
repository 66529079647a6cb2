#include "App/Application/StylesheetMacros.h"

#include <QHash>
#include <QStringView>

#include <algorithm>
#include <cstring>
#include <optional>
#include <vector>

namespace Ostrel::App {

namespace {

const QChar MacroMark = QLatin1Char('@');

} // namespace

// Why one scan gives the ordered replacement's text. Every key starts with "@" and holds no other
// "@" (checked; otherwise the scan is not used). Cut the text at each "@" into segments. A key can
// match only at a segment's start, and only within the segment unless it runs on past the next
// "@", which it can't while that "@" stands. Keys matching at one place are prefixes of each
// other, so the first in ascending order is the shortest: it wins, whenever the others would run.
// What its value brings in meets only macros sorting after it, so the expansion of a value is a
// property of the macro alone, worked out once, after the macros it may contain. Left undecided:
// a segment that no key matches but that is the start of a longer key, when what follows it may
// change (the next segment is replaced, or a value ends there).
class StylesheetMacros::Impl
{
public:
    std::map<QString, QString> macros;
    std::vector<QString> keys; // ascending, as the ordered replacement runs them
    QHash<QStringView, int> indexOf;
    std::vector<int> lengths;                     // the distinct key lengths, ascending
    std::vector<std::optional<QString>> expanded; // per key; empty when one scan can't tell
    bool scannable = true;
    // Every expansion is decided and no longer than its key: the text can be rewritten in place.
    bool shrinking = false;

    // The shortest key at index >= first that is a prefix of the segment, or -1.
    int winner(QStringView segment, int first) const
    {
        for (const int length : lengths) {
            if (length > segment.size())
                break;
            const auto it = indexOf.constFind(segment.left(length));
            if (it != indexOf.constEnd() && it.value() >= first)
                return it.value();
        }
        return -1;
    }

    bool startsLongerKey(QStringView segment) const
    {
        auto it = std::lower_bound(keys.begin(), keys.end(), segment, [](const QString& key, QStringView s) {
            return QStringView(key).compare(s) < 0;
        });
        for (; it != keys.end() && QStringView(*it).startsWith(segment); ++it) {
            if (it->size() > segment.size())
                return true;
        }
        return false;
    }

    // The winner of each segment of the whole text, in order; false when one scan can't tell.
    bool decide(QStringView text, std::vector<int>* winners) const
    {
        qsizetype at = text.indexOf(MacroMark);
        if (at < 0)
            return true;
        qsizetype next = text.indexOf(MacroMark, at + 1);
        int segmentWinner = winner(segmentOf(text, at, next), 0);
        while (at >= 0) {
            const qsizetype afterNext = next < 0 ? -1 : text.indexOf(MacroMark, next + 1);
            const int nextWinner = next < 0 ? -1 : winner(segmentOf(text, next, afterNext), 0);
            if (segmentWinner < 0 && nextWinner >= 0 && startsLongerKey(segmentOf(text, at, next)))
                return false;
            winners->push_back(segmentWinner);
            at = next;
            next = afterNext;
            segmentWinner = nextWinner;
        }
        return true;
    }

    // The decided replacements written over the text itself. Nothing written ever passes the
    // next "@" not yet read, since no expansion is longer than its key.
    void rewrite(QString* text, const std::vector<int>& winners) const
    {
        QChar* buffer = text->data();
        const qsizetype size = text->size();
        const QStringView view(buffer, size);
        const qsizetype first = view.indexOf(MacroMark);
        if (first < 0)
            return;
        qsizetype at = first;
        qsizetype out = first;
        qsizetype next = view.indexOf(MacroMark, at + 1);
        for (const int segmentWinner : winners) {
            const qsizetype afterNext = next < 0 ? -1 : view.indexOf(MacroMark, next + 1);
            const qsizetype end = next < 0 ? size : next;
            qsizetype from = at;
            if (segmentWinner >= 0) {
                const QString& value = *expanded[size_t(segmentWinner)];
                std::copy(value.constBegin(), value.constEnd(), buffer + out);
                out += value.size();
                from += keys[size_t(segmentWinner)].size();
            }
            std::memmove(static_cast<void*>(buffer + out), buffer + from, size_t(end - from) * sizeof(QChar));
            out += end - from;
            at = next;
            next = afterNext;
        }
        text->truncate(out);
    }

    static QStringView segmentOf(QStringView text, qsizetype from, qsizetype to)
    {
        return to < 0 ? text.mid(from) : text.mid(from, to - from);
    }

    // Appends the text with the keys from index `first` on replaced; false when one scan can't
    // tell. `openEnd`: more text may follow (a value inside a sheet).
    bool expand(QStringView text, int first, bool openEnd, QString* out) const
    {
        qsizetype at = text.indexOf(MacroMark);
        if (at < 0) {
            out->append(text);
            return true;
        }
        out->append(text.left(at));
        // The segment from `at` to `next` (the next "@", or -1 for the end of the text).
        const auto segment = [text](qsizetype from, qsizetype to) {
            return to < 0 ? text.mid(from) : text.mid(from, to - from);
        };
        qsizetype next = text.indexOf(MacroMark, at + 1);
        int segmentWinner = winner(segment(at, next), first);
        while (at >= 0) {
            const QStringView current = segment(at, next);
            const qsizetype afterNext = next < 0 ? -1 : text.indexOf(MacroMark, next + 1);
            const int nextWinner = next < 0 ? -1 : winner(segment(next, afterNext), first);
            if (segmentWinner >= 0) {
                if (!expanded[size_t(segmentWinner)])
                    return false;
                out->append(*expanded[size_t(segmentWinner)]);
                out->append(current.mid(keys[size_t(segmentWinner)].size()));
            } else {
                const bool mayChangeAfter = next < 0 ? openEnd : nextWinner >= 0;
                if (mayChangeAfter && startsLongerKey(current))
                    return false;
                out->append(current);
            }
            at = next;
            next = afterNext;
            segmentWinner = nextWinner;
        }
        return true;
    }
};

StylesheetMacros::StylesheetMacros(const std::map<QString, QString>& macros) : d(std::make_unique<Impl>())
{
    d->macros = macros;
    d->keys.reserve(macros.size());
    for (const auto& [key, value] : macros) {
        if (key.isEmpty() || key.at(0) != MacroMark || key.indexOf(MacroMark, 1) >= 0)
            d->scannable = false;
        d->keys.push_back(key);
    }
    if (!d->scannable)
        return;
    for (int i = 0; i < int(d->keys.size()); ++i) {
        d->indexOf.insert(QStringView(d->keys[size_t(i)]), i);
        d->lengths.push_back(d->keys[size_t(i)].size());
    }
    std::sort(d->lengths.begin(), d->lengths.end());
    d->lengths.erase(std::unique(d->lengths.begin(), d->lengths.end()), d->lengths.end());

    // From the last key down, so that the macros a value may hold (all sorting later) are ready.
    d->expanded.resize(d->keys.size());
    auto value = macros.crbegin();
    for (int i = int(d->keys.size()) - 1; i >= 0; --i, ++value) {
        if (value->second.indexOf(MacroMark) < 0) {
            d->expanded[size_t(i)] = value->second;
            continue;
        }
        QString text;
        if (d->expand(value->second, i + 1, true, &text))
            d->expanded[size_t(i)] = std::move(text);
    }
    d->shrinking = true;
    for (size_t i = 0; i < d->keys.size(); ++i)
        d->shrinking = d->shrinking && d->expanded[i] && d->expanded[i]->size() <= d->keys[i].size();
}

StylesheetMacros::~StylesheetMacros() = default;

QString StylesheetMacros::apply(const QString& text, bool* onePass) const
{
    if (d->scannable) {
        QString result;
        result.reserve(text.size() + text.size() / 8);
        if (d->expand(text, 0, false, &result)) {
            if (onePass)
                *onePass = true;
            return result;
        }
    }
    if (onePass)
        *onePass = false;
    return applyInOrder(text, d->macros);
}

QString StylesheetMacros::apply(QString&& text, bool* onePass) const
{
    if (d->scannable && d->shrinking) {
        std::vector<int> winners;
        if (d->decide(text, &winners)) {
            d->rewrite(&text, winners);
            if (onePass)
                *onePass = true;
            return std::move(text);
        }
    }
    return apply(static_cast<const QString&>(text), onePass);
}

QString StylesheetMacros::applyInOrder(QString text, const std::map<QString, QString>& macros)
{
    for (const auto& [key, value] : macros)
        text.replace(key, value, Qt::CaseSensitive);
    return text;
}

} // namespace Ostrel::App
