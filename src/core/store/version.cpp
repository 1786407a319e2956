#include "store/version.h"

namespace Version {

QString number()
{
    return QStringLiteral(PLATTERBOX_VERSION);
}

QString nameAndNumber()
{
    return QStringLiteral("Platterbox ") + number();
}

} // namespace Version
