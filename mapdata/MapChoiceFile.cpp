#include "mapdata/MapChoiceFile.h"

#include "platform/SequentialFile.h"
#include "shell/MapChoice.h"

QString mapChoiceFile()
{
    return installationRoot() + QStringLiteral("Varn\\VarnData\\MapName.dat");
}

void saveRegisteredMap(const VarnModule& varn)
{
    writeSequentialFile(varn.Drive, mapChoiceFile(), [&varn](SequentialWriter& file) {
        file.write(varn.VarnPath, varn.VarnMapName, varn.MapFontName, varn.MapFontSize, varn.MapFontBold,
                   varn.MapFontItalic, varn.SpecialFontShift);
    });
}
