// Takes the AppMutexLocker named by its argument and prints "locked", or prints "busy" and
// exits 1 if someone else holds it. Then it holds the lock until its standard input closes,
// so that it never outlives a test that dies without killing it.
#include "Foundation/AppMutexLocker.h"

#include <glog/logging.h>

#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    FLAGS_logtostderr = true;
    google::InitGoogleLogging(argv[0]);
    if (argc != 2) {
        std::cerr << "usage: foundation_lockholder <lock name>\n";
        return 2;
    }
    Ostrel::Util::AppMutexLocker locker(argv[1]);
    if (!locker.TryLockAppMutex()) {
        std::cout << "busy" << std::endl;
        return 1;
    }
    std::cout << "locked" << std::endl;
    std::string line;
    while (std::getline(std::cin, line)) {
    }
    return 0;
}
