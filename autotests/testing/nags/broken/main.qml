import QtQuick 2.15

Item {
    width: 100
    height: 100
    thisPropertyDoesNotExist: 1
}
