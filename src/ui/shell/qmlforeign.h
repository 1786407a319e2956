#pragma once

#include <QAbstractItemModel>
#include <QtQml/qqml.h>

// Lets the QML tooling know the list-model types the controllers expose.
struct ForeignAbstractItemModel
{
    Q_GADGET
    QML_FOREIGN(QAbstractItemModel)
    QML_ANONYMOUS
};
