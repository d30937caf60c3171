#include "shell/MapChoice.h"

#include <QStringList>

namespace {

QString fontStyleName(const MapFont& font)
{
    if (font.MapFontBold) {
        return font.MapFontItalic ? QStringLiteral("Bold Slant") : QStringLiteral("Bold");
    }
    return font.MapFontItalic ? QStringLiteral("Slant") : QStringLiteral("Standard");
}

} // namespace

MapChoice currentMapChoice(const VarnModule& varn)
{
    return {varn, varn.VarnMapName};
}

void applyMapChoice(const MapChoice& choice, VarnModule& varn)
{
    static_cast<MapFont&>(varn) = choice;
    varn.PhoneticBold = choice.MapFontBold;
    varn.VarnMapName = choice.VarnMapName;
    outdateSums(varn); // they are of the localities of the map before
}

MapChoice readMapChoice(SequentialReader& file)
{
    MapChoice choice;
    choice.VarnMapName = file.readString();
    choice.MapFontName = file.readString();
    choice.MapFontSize = file.readInteger();
    choice.MapFontBold = file.readBoolean();
    choice.MapFontItalic = file.readBoolean();
    choice.SpecialFontShift = file.readSingle();
    return choice;
}

void writeMapChoice(SequentialWriter& file, const MapChoice& choice)
{
    file.write(choice.VarnMapName, choice.MapFontName, choice.MapFontSize, choice.MapFontBold,
               choice.MapFontItalic, choice.SpecialFontShift);
}

MapChoice loadMapChoice(const Folders& folders)
{
    return readSequentialFile(folders.Drive, folders.MapNameFile, readMapChoice);
}

void saveMapChoice(const Folders& folders, const MapChoice& choice)
{
    writeSequentialFile(folders.Drive, folders.MapNameFile,
                        [&choice](SequentialWriter& file) { writeMapChoice(file, choice); });
}

void saveDriveFile(const Folders& folders)
{
    writeSequentialFile(folders.Drive, folders.DriveFileName,
                        [](SequentialWriter& file) { file.write(installationRoot()); });
}

QString mapChoiceQuestion(const MapChoice& choice)
{
    const QStringList lines = {
        installationRoot(),
        QStringLiteral("Map Name ") + choice.VarnMapName.mid(1),
        QStringLiteral("Font ") + choice.MapFontName,
        QStringLiteral("Font Style '%1'").arg(fontStyleName(choice)),
        QStringLiteral("Size of Fonts %1 OK?").arg(choice.MapFontSize),
    };
    return lines.join(QStringLiteral("\r\n"));
}
