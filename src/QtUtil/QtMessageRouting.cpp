#include "QtUtil/QtMessageRouting.h"

#include "Foundation/PersonalDataMask.h"

#include <glog/logging.h>

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstdlib>
#include <cstring>

namespace Ostrel::Util {

namespace {

google::LogSeverity severityOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
    case QtInfoMsg:
        return google::GLOG_INFO;
    case QtWarningMsg:
        return google::GLOG_WARNING;
    case QtCriticalMsg:
    case QtFatalMsg:
    default:
        // Not glog's FATAL: that would abort inside glog before Qt's own handling of the message.
        return google::GLOG_ERROR;
    }
}

void routeToGlog(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // Qt's own messages may quote a URL that carries the user's name or address.
    const QByteArray text = Core::PersonalDataMask::mask(message).toUtf8();
    // Release builds of Qt leave the file out of the context; the log line still needs a source.
    const char* file = context.file ? context.file : "qt";
    {
        google::LogMessage line(file, context.line, severityOf(type));
        if (context.category && std::strcmp(context.category, "default") != 0)
            line.stream() << '[' << context.category << "] ";
        line.stream() << text.constData();
    }
    if (type == QtFatalMsg) {
        google::FlushLogFiles(google::GLOG_INFO);
        std::abort();
    }
}

} // namespace

QtMessageHandler InstallQtMessageRouting()
{
    return qInstallMessageHandler(&routeToGlog);
}

} // namespace Ostrel::Util
