// What can be set for the maps: place of the symbols, dots, whole word forms, file names, size.

#include "platform/Numbers.h"
#include "render/MapSize.h"
#include "render/forms/frmMap.h"
#include "shell/VarnModule.h"
#include "ui_frmMap.h"

#include <QButtonGroup>

#include <algorithm>

void frmMap::mnuHpos_Click()
{
    constexpr int Gap = 12;
    const QRect shown = m_ui->picMap->visibleRegion().boundingRect();
    m_ui->fraStyle->adjustSize();
    m_ui->fraStyle->move(std::max(0, shown.right() - m_ui->fraStyle->width() - Gap), shown.top() + Gap);
    m_ui->fraStyle->show();
    m_places->checkedButton()->setFocus();
}

void frmMap::hideStyle()
{
    m_ui->fraStyle->hide();
}

void frmMap::mnuChiten_Click()
{
    m_varn.PlotDots = dialogs().askYesNo(QStringLiteral("Will you plot dots for localities ?"),
                                         QStringLiteral("Plot Locality Dots"));
}

void frmMap::mnuWholeWordForms_Click()
{
    m_varn.WholeWordForms = m_ui->mnuWholeWordForms->isChecked();
}

void frmMap::mnuStyle_Click()
{
    m_varn.WriteFileName = dialogs().askYesNo(QStringLiteral("Will you print File Name?"),
                                              QStringLiteral("Write Symbol File Name"));
}

void frmMap::mnuMapSize_Click()
{
    constexpr double SmallestHeight = 0.1;
    const auto answer = dialogs().input(
        QStringLiteral("Input the height of map. (mm unit. Maximum is about 150mm) Iinitial setting is "
                       "0mm(default)."),
        QStringLiteral("Set of Map Vertical Size"), QStringLiteral("0"));
    if (!answer) {
        return;
    }
    if (const double millimetres = Val(*answer); millimetres >= SmallestHeight) {
        const FormArea area = withHeight(surfaces().area, millimetres);
        setSize(area.Width, area.Height);
    } else {
        setSize(toSingle(m_varn.MapFormWidth), m_varn.MapFormHeight);
    }
    showArea();
}
