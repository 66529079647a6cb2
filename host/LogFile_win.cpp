#include "LogFile.h"

// glog shares its file between processes on Windows.
bool isLogFileTakenByAnotherProcess(const QString&)
{
    return false;
}
