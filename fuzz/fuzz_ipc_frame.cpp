// The framing of inter-process messages on arbitrary bytes, whole and in two pieces: the same
// messages either way, every message re-encodes to the bytes it came from, and nothing is read
// after an error.

#include "Ipc/IpcFrameReader.h"

#include <cstdint>
#include <cstdlib>

using namespace Ostrel::App;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    IpcFrameReader whole;
    const auto messages = whole.Feed(bytes);

    IpcFrameReader split;
    const int half = bytes.size() / 2;
    auto pieces = split.Feed(bytes.left(half));
    pieces += split.Feed(bytes.mid(half));
    if (pieces.size() != messages.size() || split.GetStatus() != whole.GetStatus())
        std::abort();

    QByteArray encoded;
    for (int i = 0; i < messages.size(); ++i) {
        if (messages[i].text != pieces[i].text)
            std::abort();
        encoded += IpcFrameReader::Encode(messages[i].type, messages[i].text);
    }
    if (!bytes.startsWith(encoded))
        std::abort();
    if (whole.GetStatus() == IpcFrameReader::Status::Error && !whole.Feed(bytes).isEmpty())
        std::abort();
    return 0;
}
