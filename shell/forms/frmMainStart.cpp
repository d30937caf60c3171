// The start of the program: its folders, the current map and the map font, the base map.

#include "mapdata/MapFiles.h"
#include "platform/Folder.h"
#include "platform/Numbers.h"
#include "platform/WholeFile.h"
#include "shell/Installation.h"
#include "shell/MapChoice.h"
#include "shell/Recovery.h"
#include "shell/VarnModule.h"
#include "shell/forms/frmMain.h"

void frmMain::Form_Load(const QString& installation)
{
    fixPaths(m_varn);
    recomputePaper();
    run([&] { layDownInstallation(installation, m_varn); });
    applyMapChoice({}, m_varn);
    run([this] {
        if (fileExists(m_varn.Drive, m_varn.DriveFileName)) {
            InputVarnDrive();
        } else {
            VarnDrive();
        }
    });
    m_map.Form_Load();
    m_varn.MapFormWidth = m_map.surface().Width;
    m_varn.MapFormHeight = toInteger(m_map.surface().Height);
    fixLingFolder(m_varn);
    loadStartMap();
    m_varn.AnalysisMode = 0;
    m_varn.PlotDots = false;
    m_varn.WriteFileName = false;
    startKeeping();
    offerKeptWork();
    refresh();
}

void frmMain::InputVarnDrive()
{
    const QString title = QStringLiteral("Map Name, Font");
    const bool read = run([this] { applyMapChoice(loadMapChoice(m_varn), m_varn); });
    const bool right =
        read ? dialogs().askYesNo(mapChoiceQuestion(currentMapChoice(m_varn)), title)
             : !dialogs().askYesNo(
                   QStringLiteral("The map name could not be read. Input map name and font now?"), title);
    if (!right) {
        VarnDrive();
    }
}

void frmMain::VarnDrive()
{
    saveDriveFile(m_varn);
    saveMapChoice(m_varn, currentMapChoice(m_varn));
    MapChoice choice = currentMapChoice(m_varn);
    if (const auto name = dialogs().input(QStringLiteral("Input Map Name"),
                                          QStringLiteral("Map Name of Varn"), choice.VarnMapName.mid(1))) {
        choice.VarnMapName = QLatin1Char('\\') + *name;
    }
    if (dialogs().askYesNo(QStringLiteral("Input Font Name"), QStringLiteral("Setting of Fonts"))) {
        askForFont(choice);
    }
    applyMapChoice(choice, m_varn);
    saveMapChoice(m_varn, choice);
}

void frmMain::askForFont(MapFont& font)
{
    if (const auto chosen = dialogs().chooseFont(
            {font.MapFontName, font.MapFontSize, font.MapFontBold, font.MapFontItalic})) {
        font.MapFontName = chosen->name;
        font.MapFontSize = toInteger(chosen->size);
        font.MapFontBold = chosen->bold;
        font.MapFontItalic = chosen->italic;
    }
    if (const auto shift = dialogs().input(
            QStringLiteral("Input Vertical Position of Special Fonts.  Input (-3.0 to 3.0).  Default (0)\r\n"
                           "Move Upper for Smaller Number"),
            QStringLiteral("Vertical Position of Special Fonts"), QString::number(font.SpecialFontShift))) {
        font.SpecialFontShift = toSingle(Val(*shift));
    }
}

void frmMain::loadStartMap()
{
    run([this] { LoadSquareData(m_varn.Drive, m_varn.VarnPath, m_varn); });
    run([this] { m_varn.ExpSymbols = LoadSymbols(m_varn); });
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
void frmMain::loadParts(const QStringList& missing)
{
    const MapPlace place{m_varn.VarnPath, m_varn.VarnMapName};
    QStringList told;
    for (const QString& path : missing) {
        told << RunTimeError(ErrorNumber::FileNotFound).at({path}).where();
    }
    if (!told.isEmpty()) {
        dialogs().error(RunTimeError(ErrorNumber::FileNotFound).title(), told.join(QLatin1Char('\n')));
    }
    for (const MapPart& part : mapParts()) {
        if (!missing.contains(part.path(place))) {
            run([&] {
                part.load(m_varn.Drive, place, m_varn);
            }); // a damaged one does not keep off the others
        }
    }
    run([this] { loadLocalityNames(m_varn, m_varn); });
}

void frmMain::offerToMakeMap()
{
    if (dialogs().askYesNo(
            QStringLiteral("There is no map %1. Make a new one?").arg(m_varn.VarnMapName.mid(1)),
            QStringLiteral("Map Name of Varn"))) {
        run([this] { makeMap(m_varn); });
    }
}
