#include "atlas/forms/AtlasMapView.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "atlas/FreePlace.h"
#include "atlas/LocalityAnswer.h"
#include "atlas/forms/AtlasCanvas.h"
#include "atlas/forms/AtlasFindBar.h"
#include "atlas/forms/AtlasHoverCard.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

AtlasMapView::AtlasMapView(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection)
    : m_varn(varn), m_document(document), m_selection(selection),
      m_canvas(new AtlasCanvas([this](double zoom) { return draw(zoom); })),
      m_card(new AtlasHoverCard(varn, m_canvas)), m_findBar(new AtlasFindBar([this](const QString& text) {
          return localitiesFound(m_varn, m_document.page().item, text);
      })),
      m_message(new QLabel(m_canvas))
{
    m_canvas->setObjectName(QStringLiteral("map"));
    m_canvas->setAccessibleName(QStringLiteral("Map"));
    m_canvas->setAccessibleDescription(
        QStringLiteral("Arrow keys move the map, plus and minus zoom, F shows all of it."));
    m_message->setObjectName(QStringLiteral("mapMessage"));
    m_message->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_message->setAutoFillBackground(true);
    m_message->setBackgroundRole(QPalette::ToolTipBase);
    m_message->setForegroundRole(QPalette::ToolTipText);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setMargin(12);
    m_message->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_findBar);
    column->addWidget(m_canvas, 1);
    addActions();
    follow();
    renew();
}

void AtlasMapView::follow()
{
    connect(&m_document, &AtlasDocument::pageTurned, this, &AtlasMapView::renew);
    connect(&m_document, &AtlasDocument::symbolsChanged, this, &AtlasMapView::renew);
    connect(&m_document, &AtlasDocument::wordsChanged, this, &AtlasMapView::renew);
    connect(&m_document, &AtlasDocument::baseMapChanged, this, &AtlasMapView::renew);
    connect(&m_selection, &AtlasSelection::localitiesChanged, this,
            [this] { m_canvas->setSelected(m_selection.localities()); });
    connect(&m_selection, &AtlasSelection::recordsChanged, this,
            [this] { m_canvas->setStandingOut(m_selection.records()); });
    connect(&m_selection, &AtlasSelection::localitySought, this, &AtlasMapView::goTo);
    connect(m_canvas, &AtlasCanvas::localityHovered, this, &AtlasMapView::showAnswer);
    connect(m_canvas, &AtlasCanvas::localityClicked, this, &AtlasMapView::click);
    connect(m_canvas, &AtlasCanvas::localitiesBanded, this, &AtlasMapView::selectAll);
    connect(m_canvas, &AtlasCanvas::legendDragged, this, &AtlasMapView::moveLegend);
    connect(m_canvas, &AtlasCanvas::viewChanged, this, [this] {
        hideAnswer();
        placeMessage();
    });
    connect(m_findBar, &AtlasFindBar::found, this, [this](int locality) {
        m_selection.setLocalities({locality});
        Q_EMIT m_selection.localitySought(locality);
    });
    connect(m_findBar, &AtlasFindBar::closed, m_canvas, [this] { m_canvas->setFocus(); });
}

void AtlasMapView::setOtherMap(OtherMap map)
{
    m_other = std::move(map);
    enableLayers();
    renew();
}

AtlasDrawing AtlasMapView::draw(double zoom) const
{
    MapGeometry geometry; // the other forms' stays theirs
    SymbolSet symbols = m_document.page().symbols;
    static_cast<SymbolRecords&>(symbols) = m_document.shownSymbols();
    const LinguisticMapParts parts{{m_varn, m_varn, symbols.SymbolFileName, geometry},
                                   textParts(m_varn),
                                   m_document.page().item,
                                   symbols};
    AtlasMapStyle style{m_layers, zoom};
    style.layers.legend = m_layers.legend && m_document.hasPage();
    return m_other.draw ? drawOtherMap(parts, style, m_other) : drawAtlasMap(parts, style);
}

Drawing AtlasMapView::drawing() const
{
    return draw(1).drawing;
}

QSizeF AtlasMapView::paperSize() const
{
    const QRectF paper = draw(1).paper;
    return {paper.right(), paper.bottom()};
}

QString AtlasMapView::trouble() const
{
    return m_canvas->map().trouble;
}

void AtlasMapView::renew()
{
    hideAnswer();
    showStyle();
    m_canvas->renew();
    showMessage();
}

void AtlasMapView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    const bool mayShowOthers =
        event->type() == QEvent::ActivationChange || event->type() == QEvent::PaletteChange;
    if (mayShowOthers && isActiveWindow()) {
        renew(); // the map font may be another one
    }
}

void AtlasMapView::showAnswer(int locality)
{
    if (locality == 0) {
        hideAnswer();
        return;
    }
    const SymbolRecords& symbols = m_document.shownSymbols();
    const SymbolMarks marks(symbols, m_varn.WholeWordForms);
    const LocalityAnswer answer = answerOf(m_varn, m_document.page().item, symbols, marks, locality);
    m_card->showAnswer(answer, symbols, m_canvas->placeOf(locality));
    Q_EMIT localityHovered(answer.line());
}

void AtlasMapView::hideAnswer()
{
    m_card->hide();
    Q_EMIT localityHovered({});
}

/// A click beside all localities clears the selection.
void AtlasMapView::click(int locality, bool add)
{
    m_canvas->setFocus();
    AtlasSelection::Numbers chosen = add ? m_selection.localities() : AtlasSelection::Numbers();
    if (locality == 0 && !add) {
        m_selection.setRecords({});
    } else if (locality > 0 && chosen.erase(locality) == 0) {
        chosen.insert(locality);
    }
    m_selection.setLocalities(chosen);
}

void AtlasMapView::selectAll(const std::set<int>& localities, bool add)
{
    AtlasSelection::Numbers chosen = add ? m_selection.localities() : AtlasSelection::Numbers();
    chosen.insert(localities.begin(), localities.end());
    m_selection.setLocalities(chosen);
}

void AtlasMapView::moveLegend(QPointF by)
{
    m_document.setLegendPlace(m_document.legendPlace() + by);
}

void AtlasMapView::putLegendOnFreePlace()
{
    constexpr double SymbolRoom = 140;

    const AtlasDrawing printed = draw(1);
    if (!printed.legendBox.isEmpty()) {
        const std::vector<QPointF> baseMap =
            pointsOf(printed.drawing, printed.baseMap.first, printed.baseMap.end);
        const QPointF place =
            freePlace(printed.paper, printed.legendBox.size(), {printed.localities, baseMap, SymbolRoom});
        moveLegend((place - printed.legendBox.topLeft()) / printed.scale);
    }
}

void AtlasMapView::goTo(int locality)
{
    const auto count = static_cast<int>(m_canvas->map().localities.size());
    if (locality >= 1 && locality <= count) {
        m_canvas->bringIntoView(locality);
        showAnswer(locality);
    }
}

QString AtlasMapView::message()
{
    if (m_varn.NLocality == 0) {
        return QStringLiteral("No map is open. Open Map shows all maps; New Survey makes one from a table.");
    }
    if (!m_canvas->map().trouble.isEmpty()) {
        return QStringLiteral("The map is not complete; mend this, and all of it is shown.\n%1")
            .arg(m_canvas->map().trouble);
    }
    if (m_other.draw && !m_other.isOfItem) {
        return m_other.message;
    }
    if (!m_document.hasPage()) {
        return QStringLiteral("No item is shown. Choose one in the list of items; New Survey makes a map "
                              "with items from a table.");
    }
    if (!m_document.trouble().isEmpty()) {
        return QStringLiteral("This item cannot be drawn.\n%1").arg(m_document.trouble());
    }
    if (!m_document.page().symbolTrouble.isEmpty()) {
        return QStringLiteral("The symbol file cannot be read.\n%1").arg(m_document.page().symbolTrouble);
    }
    return m_document.shownSymbols().NHanrei == 0
               ? QStringLiteral("This item has no symbols yet. Make Symbols makes a set.")
               : QString();
}

void AtlasMapView::showMessage()
{
    const QString text = message();
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    placeMessage();
}

void AtlasMapView::placeMessage()
{
    constexpr int MostWidth = 480;
    constexpr int Rim = 24;

    const int width = std::clamp(m_canvas->width() - 2 * Rim, 0, MostWidth);
    const int height = m_message->heightForWidth(width);
    m_message->setGeometry((m_canvas->width() - width) / 2, m_canvas->height() - height - Rim, width, height);
}
