#pragma once

#include "platform/forms/VarnForm.h"
#include "render/MapGeometry.h"

#include <functional>
#include <memory>

struct VarnModule;

namespace Ui {
class frmChizu;
}

/// The map set-up form: chooses and registers a map, and draws its parts or the whole of it for a look.
class frmChizu : public VarnForm
{
    Q_OBJECT

public:
    /// `mapSurfaces` gives the map form's surface and area beside the current drawing target: maps are drawn
    /// here as large as there. `mayChangeMap` asks whether the user gives up unsaved work on the current map.
    frmChizu(VarnModule& varn, Dialogs& dialogs, std::function<MapSurfaces()> mapSurfaces,
             std::function<bool()> mayChangeMap);
    ~frmChizu() override;

    /// Clears the form's drawing.
    void Form_Load();
    /// The form's own drawing.
    const DrawSurface& surface() const { return m_surface; }
    void refresh() override;
    QString helpSection() const override { return QStringLiteral("Choosing a map"); }

Q_SIGNALS:
    /// The user wants to go back to the main form.
    void toMain();
    /// The user wants to go to the map form.
    void toDrawMap();
    /// Another map is the current one now.
    void mapChosen();

private:
    void cmdCurveLine_Click();
    void cmdChiten_Click();
    void cmdMoji_Click();
    void cmdBlankMap_Click();
    void cmdRegMapName_Click();

    void FindMinMax(float& scale) const;
    bool SearchLocateData();
    void tellMissingParts();
    void LoadLocate();
    void SetMapName();
    void PlotLocateCircle();

    /// Runs `draw` with this form as the drawing target; the map form is the target again afterwards.
    void drawHere(const std::function<void(MapSurfaces)>& draw);
    void cls();
    void printPath();

    std::unique_ptr<Ui::frmChizu> m_ui;
    VarnModule& m_varn;
    std::function<MapSurfaces()> m_mapSurfaces;
    std::function<bool()> m_mayChangeMap;
    DrawSurface m_surface;
};
