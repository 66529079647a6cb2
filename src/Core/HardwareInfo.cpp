#include "Core/HardwareInfo.h"

#include "Core/HardwareInfo_p.h"
#include "Foundation/Utf8.h"

#include <glog/logging.h>

#include <QCryptographicHash>
#include <QMessageAuthenticationCode>

namespace Ostrel::App {

class HardwareInfo::Impl
{
public:
    std::string id;
};

HardwareInfo::HardwareInfo() : d(std::make_unique<Impl>())
{
    QString source;
    const QByteArray raw = Platform::readMachineId(&source);
    if (raw.isEmpty()) {
        LOG(WARNING) << "No machine identifier readable from " << Util::QStringToUtf8(source)
                     << "; requests go without one";
        return;
    }
    // Keyed, as the system asks of applications, so that the id we send can not be matched with
    // what other programs send. The key must never change: servers know machines by this value.
    const QByteArray key = QByteArrayLiteral("Ostrel hardware id");
    const QByteArray mac = QMessageAuthenticationCode::hash(raw, key, QCryptographicHash::Sha256);
    d->id = mac.toHex().left(32).toStdString();
}

HardwareInfo::~HardwareInfo() = default;

std::string HardwareInfo::GetHardwareId() const
{
    return d->id;
}

} // namespace Ostrel::App
