#include "shell/StartUp.h"

#include "mapdata/MapFiles.h"
#include "mapdata/MapSearch.h"
#include "platform/Folder.h"
#include "platform/Numbers.h"
#include "platform/WholeFile.h"
#include "shell/Installation.h"
#include "shell/MapChoice.h"

#include <utility>

StartUp::StartUp(VarnModule& varn, Dialogs& dialogs, Attempt attempt)
    : m_varn(varn), m_dialogs(dialogs), m_attempt(std::move(attempt))
{}

void StartUp::chooseMapAndFont(const QString& installation)
{
    m_attempt([&] { layDownInstallation(installation, m_varn); });
    applyMapChoice({}, m_varn);
    m_attempt([this] {
        if (fileExists(m_varn.Drive, m_varn.DriveFileName)) {
            InputVarnDrive();
        } else {
            VarnDrive();
        }
    });
}

void StartUp::InputVarnDrive()
{
    const QString title = QStringLiteral("Map Name, Font");
    const bool read = m_attempt([this] { applyMapChoice(loadMapChoice(m_varn), m_varn); });
    const bool right =
        read ? m_dialogs.askYesNo(mapChoiceQuestion(currentMapChoice(m_varn)), title)
             : !m_dialogs.askYesNo(
                   QStringLiteral("The map name could not be read. Input map name and font now?"), title);
    if (!right) {
        VarnDrive();
    }
}

void StartUp::VarnDrive()
{
    saveDriveFile(m_varn);
    saveMapChoice(m_varn, currentMapChoice(m_varn));
    MapChoice choice = currentMapChoice(m_varn);
    if (const auto name = m_dialogs.input(QStringLiteral("Input Map Name"),
                                          QStringLiteral("Map Name of Varn"), choice.VarnMapName.mid(1))) {
        choice.VarnMapName = QLatin1Char('\\') + *name;
    }
    if (m_dialogs.askYesNo(QStringLiteral("Input Font Name"), QStringLiteral("Setting of Fonts"))) {
        askForFont(choice);
    }
    applyMapChoice(choice, m_varn);
    saveMapChoice(m_varn, choice);
}

void StartUp::askForFont(MapFont& font)
{
    if (const auto chosen = m_dialogs.chooseFont(textFont(font))) {
        font.MapFontName = chosen->name;
        font.MapFontSize = toInteger(chosen->size);
        font.MapFontBold = chosen->bold;
        font.MapFontItalic = chosen->italic;
    }
    if (const auto shift = m_dialogs.input(
            QStringLiteral("Input Vertical Position of Special Fonts.  Input (-3.0 to 3.0).  Default (0)\r\n"
                           "Move Upper for Smaller Number"),
            QStringLiteral("Vertical Position of Special Fonts"), QString::number(font.SpecialFontShift))) {
        font.SpecialFontShift = toSingle(Val(*shift));
    }
}

void StartUp::loadMap()
{
    m_attempt([this] { LoadSquareData(m_varn.Drive, m_varn.VarnPath, m_varn); });
    m_attempt([this] { m_varn.ExpSymbols = LoadSymbols(m_varn); });
    if (!m_varn.hasMap()) {
        return; // the user has been told, or did not choose a map
    }
    if (folderExists(m_varn.Drive, mapFolder(m_varn.VarnPath, m_varn.VarnMapName))) {
        loadParts(missingParts(m_varn.Drive, {m_varn.VarnPath, m_varn.VarnMapName}));
    } else {
        offerToMakeMap();
    }
    findStartExtent(m_varn, m_varn);
}

/// Loads the parts of the current map; those that are `missing` are told in one error.
void StartUp::loadParts(const QStringList& missing)
{
    const MapPlace place{m_varn.VarnPath, m_varn.VarnMapName};
    QStringList told;
    for (const QString& path : missing) {
        told << RunTimeError(ErrorNumber::FileNotFound).at({path}).where();
    }
    if (!told.isEmpty()) {
        m_dialogs.error(RunTimeError(ErrorNumber::FileNotFound).title(), told.join(QLatin1Char('\n')));
    }
    for (const MapPart& part : mapParts()) {
        if (!missing.contains(part.path(place))) {
            m_attempt([&] {
                part.load(m_varn.Drive, place, m_varn);
            }); // a damaged one does not keep off the others
        }
    }
    m_attempt([this] { loadLocalityNames(m_varn, m_varn); });
}

void StartUp::offerToMakeMap()
{
    if (m_dialogs.askYesNo(
            QStringLiteral("There is no map %1. Make a new one?").arg(m_varn.VarnMapName.mid(1)),
            QStringLiteral("Map Name of Varn"))) {
        m_attempt([this] { makeMap(m_varn); });
    }
}
