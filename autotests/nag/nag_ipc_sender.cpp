// A second process of the product: hands a nag address to the running one, as a second
// ostrel-host started with "--open-nag" does. Exit code 0 when the running one confirmed.

#include "Ipc/LocalSocketProtocol.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 3)
        return 2;
    return Ostrel::App::LocalSocketProtocol::SendOpenNag(QString::fromUtf8(argv[1]),
                                                         QString::fromUtf8(argv[2]))
               ? 0
               : 1;
}
