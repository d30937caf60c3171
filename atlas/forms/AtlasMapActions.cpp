// What the map view offers to menus and tool bars.

#include "atlas/AtlasDocument.h"
#include "atlas/forms/AtlasCanvas.h"
#include "atlas/forms/AtlasFindBar.h"
#include "atlas/forms/AtlasMapView.h"
#include "shell/VarnModule.h"

#include <QAction>
#include <QActionGroup>

#include <array>
#include <utility>

namespace {

const QString DotsName = QStringLiteral("actDots");

} // namespace

QAction* AtlasMapView::makeAction(const QString& text, const QString& name)
{
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    addAction(action);
    return action;
}

void AtlasMapView::addActions()
{
    m_find = makeAction(QStringLiteral("&Find on the Map..."), QStringLiteral("actFind"));
    m_find->setShortcut(QKeySequence::Find);
    connect(m_find, &QAction::triggered, m_findBar, &AtlasFindBar::begin);
    m_freePlace = makeAction(QStringLiteral("Legend to a Free &Place"), QStringLiteral("actFreePlace"));
    m_freePlace->setToolTip(QStringLiteral("Put the legend where it hides as few localities as can be"));
    connect(m_freePlace, &QAction::triggered, this, &AtlasMapView::putLegendOnFreePlace);
    m_wholeWordForms = makeAction(QStringLiteral("Whole Word &Forms"), QStringLiteral("actWholeWordForms"));
    m_wholeWordForms->setCheckable(true);
    connect(m_wholeWordForms, &QAction::triggered, this, [this](bool on) {
        MapStyle style = m_varn;
        style.WholeWordForms = on;
        m_document.setMapStyle(style);
    });
    addLayerActions();
    addLabelActions();
    addPlaceActions();
    addZoomActions();
}

QAction* AtlasMapView::makeLayer(const QString& text, const QString& name, bool AtlasLayers::*layer)
{
    QAction* action = makeAction(text, name);
    action->setCheckable(true);
    action->setChecked(m_layers.*layer);
    connect(action, &QAction::toggled, this, [this, layer](bool on) {
        m_layers.*layer = on;
        renew();
    });
    return action;
}

void AtlasMapView::addLayerActions()
{
    m_layerActions = {
        makeLayer(QStringLiteral("&Lines"), QStringLiteral("actLines"), &AtlasLayers::lines),
        makeLayer(QStringLiteral("&Dots"), DotsName, &AtlasLayers::dots),
        makeLayer(QStringLiteral("&Place Names"), QStringLiteral("actPlaceNames"), &AtlasLayers::placeNames),
        makeLayer(QStringLiteral("Le&gend"), QStringLiteral("actLegend"), &AtlasLayers::legend),
    };
}

void AtlasMapView::addLabelActions()
{
    using Labels = AtlasLayers::Labels;
    struct Choice
    {
        const char* name;
        const char* text;
        Labels labels;
    };
    constexpr std::array Choices = {Choice{"actNoLabels", "Localities &without Labels", Labels::None},
                                    Choice{"actNumbers", "Locality N&umbers", Labels::Numbers},
                                    Choice{"actNames", "Locality &Names", Labels::Names}};

    auto* group = new QActionGroup(this);
    for (const Choice& choice : Choices) {
        QAction* action = makeAction(QLatin1String(choice.text), QLatin1String(choice.name));
        action->setCheckable(true);
        action->setChecked(choice.labels == m_layers.labels);
        group->addAction(action);
        m_layerActions << action;
        connect(action, &QAction::triggered, this, [this, labels = choice.labels] {
            m_layers.labels = labels;
            renew();
        });
    }
}

/// Other maps draw their lines, names and legend as one with what they show, and plots have no localities.
void AtlasMapView::enableLayers()
{
    const bool isLinguistic = !m_other.draw;
    for (QAction* layer : std::as_const(m_layerActions)) {
        const bool isOfLocalities = layer->actionGroup() != nullptr || layer->objectName() == DotsName;
        layer->setEnabled(isLinguistic || (isOfLocalities && m_other.hasLocalities));
    }
    m_freePlace->setEnabled(isLinguistic);
}

void AtlasMapView::addPlaceActions()
{
    constexpr std::array Places = {std::pair(HankoCenter, "&Center"), std::pair(HankoRight, "&Right"),
                                   std::pair(HankoLeft, "&Left"), std::pair(HankoUp, "&Up"),
                                   std::pair(HankoDown, "&Down")};

    auto* group = new QActionGroup(this);
    for (const auto& [place, text] : Places) {
        QAction* action = makeAction(QLatin1String(text), QStringLiteral("actPlace%1").arg(place));
        action->setToolTip(QStringLiteral("Where the second and later word forms stand"));
        action->setCheckable(true);
        group->addAction(action);
        m_placeActions << action;
        connect(action, &QAction::triggered, this, [this, chosen = place] {
            MapStyle style = m_varn;
            style.HankoPosition = chosen;
            m_document.setMapStyle(style);
        });
    }
}

void AtlasMapView::addZoomActions()
{
    QAction* larger = makeAction(QStringLiteral("Zoom &In"), QStringLiteral("actZoomIn"));
    larger->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    connect(larger, &QAction::triggered, m_canvas, [this] { m_canvas->zoom(AtlasCanvas::ZoomStep); });
    QAction* smaller = makeAction(QStringLiteral("Zoom &Out"), QStringLiteral("actZoomOut"));
    smaller->setShortcut(QKeySequence::ZoomOut);
    connect(smaller, &QAction::triggered, m_canvas, [this] { m_canvas->zoom(1 / AtlasCanvas::ZoomStep); });
    QAction* whole = makeAction(QStringLiteral("&Whole Map"), QStringLiteral("actFit"));
    whole->setShortcut(Qt::Key_F);
    whole->setShortcutContext(Qt::WidgetWithChildrenShortcut); // elsewhere it is a letter
    connect(whole, &QAction::triggered, m_canvas, &AtlasCanvas::fit);
    QAction* keep = makeAction(QStringLiteral("Symbols &Keep Their Size"), QStringLiteral("actKeepSize"));
    keep->setCheckable(true);
    keep->setChecked(true);
    connect(keep, &QAction::toggled, m_canvas, &AtlasCanvas::setSymbolsKeepSize);
    m_zoomActions = {larger, smaller, whole, keep};
}

void AtlasMapView::showStyle()
{
    m_wholeWordForms->setChecked(m_varn.WholeWordForms);
    m_placeActions.at(m_varn.HankoPosition)->setChecked(true);
}
