#include "mapdata/RegisteredMap.h"

#include "platform/SequentialFile.h"

QString registeredMapFile()
{
    return installationRoot() + QStringLiteral("Varn\\VarnData\\MapName.dat");
}

void saveRegisteredMap(const Folders& folders, const MapFont& font)
{
    writeSequentialFile(folders.Drive, registeredMapFile(), [&](SequentialWriter& file) {
        file.write(folders.VarnPath, folders.VarnMapName, font.MapFontName, font.MapFontSize,
                   font.MapFontBold, font.MapFontItalic, font.SpecialFontShift);
    });
}
