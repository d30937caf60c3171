#pragma once

#include "platform/Dialogs.h"
#include "shell/VarnModule.h"

#include <functional>

/// The start of the program: asks for the map and the map font, and loads the base map. Each step runs
/// through `attempt`, which tells the user of an error and returns whether there was none; the start goes on.
class StartUp
{
public:
    using Attempt = std::function<bool(const std::function<void()>&)>;

    StartUp(VarnModule& varn, Dialogs& dialogs, Attempt attempt);

    /// Lays down the installation tree from `installation`, and reads or asks for the current map and the map
    /// font.
    void chooseMapAndFont(const QString& installation);
    /// Loads the polygon designs, the phonetic code and the base map of the current map; where there is no
    /// such map, offers to make it.
    void loadMap();

private:
    void InputVarnDrive();
    void VarnDrive();
    void askForFont(MapFont& font);
    void loadParts(const QStringList& missing);
    void offerToMakeMap();

    VarnModule& m_varn;
    Dialogs& m_dialogs;
    Attempt m_attempt;
};
