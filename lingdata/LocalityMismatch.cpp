#include "lingdata/LocalityMismatch.h"

QString localityMismatch(int itemLocalities, int mapLocalities)
{
    return itemLocalities == mapLocalities ? QString()
                                           : QStringLiteral("The item has %1 localities, the map has %2.")
                                                 .arg(itemLocalities)
                                                 .arg(mapLocalities);
}
