#include "Foundation/SHA1.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <algorithm>

namespace Ostrel::Util {

std::string SHA1::digest(const std::string& data)
{
    // Qt sizes are int: feed larger inputs in pieces rather than truncating the length.
    constexpr std::size_t Chunk = std::size_t(1) << 30;
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (std::size_t offset = 0; offset < data.size(); offset += Chunk) {
        const std::size_t length = std::min(Chunk, data.size() - offset);
        hash.addData(data.data() + offset, static_cast<int>(length));
    }
    return hash.result().toHex().toStdString();
}

} // namespace Ostrel::Util
