#include "shell/MapChange.h"

#include "lingdata/ItemLoader.h"
#include "shell/VarnModule.h"

bool isCurrentMap(const MapPlace& place, const Folders& folders)
{
    return place.VarnPath.compare(folders.VarnPath, Qt::CaseInsensitive) == 0 &&
           place.VarnMapName.compare(folders.VarnMapName, Qt::CaseInsensitive) == 0;
}

void changeMap(const MapPlace& place, VarnModule& varn)
{
    const bool sameMap = isCurrentMap(place, varn);
    chooseMap(place, varn, varn);
    if (sameMap) {
        return;
    }
    dropItem(varn, varn);
    static_cast<CumulativeData&>(varn) = {};
    static_cast<Statistics&>(varn) = {};
    outdateSums(varn);
}
