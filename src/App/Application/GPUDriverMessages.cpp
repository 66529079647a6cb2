#include "App/Application/GPUDriverMessages.h"

#include <QCoreApplication>
#include <QVariant>

namespace {

// Read at each call: the host may change the property with the theme.
QString linkStyle()
{
    const QCoreApplication* app = QCoreApplication::instance();
    return app ? app->property("linkStyle").toString() : QString();
}

} // namespace

QString GetGPUNeedSetupDriverMessage(const QString& instructionsUrl, const QString& productName)
{
    // One multi-argument arg(), so that a "%1" inside the URL is not replaced again.
    return QCoreApplication::translate(
               "SharedMessages",
               "NVIDIA<sup>&reg;</sup> CUDA&#8482; acceleration has been disabled in NVIDIA<sup>&reg;</sup> "
               "Control "
               "Panel. To enable CUDA&#8482; acceleration for %1, select <b>High-performance "
               "NVIDIA<sup>&reg;</sup> "
               "processor</b> as your preferred graphics processor in NVIDIA<sup>&reg;</sup> Control "
               "Panel.<br><br><a href=\"%2\" style=\"%3\">Detailed Instructions</a>",
               nullptr, -1)
        .arg(productName, instructionsUrl, linkStyle());
}

QString GetGPUUnsupportedDriverMessage(const QString& downloadUrl)
{
    return QCoreApplication::translate("SharedMessages",
                                       "Unfortunately, the currently installed graphics card driver does not "
                                       "support NVIDIA<sup>&reg;</sup> "
                                       "CUDA&#8482; acceleration.<br><br>You can install an earlier version "
                                       "of the NVIDIA<sup>&reg;</sup> "
                                       "graphics card driver to enable CUDA&#8482; acceleration. To do that, "
                                       "simply download the installation "
                                       "package and follow the manufacturer's instructions to install the "
                                       "driver.<br><br><a href=\"%1\" "
                                       "style=\"%2\">Download Driver</a>",
                                       nullptr, -1)
        .arg(downloadUrl, linkStyle());
}
