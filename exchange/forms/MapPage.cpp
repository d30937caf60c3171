#include "exchange/forms/MapPage.h"

#include "platform/Dialogs.h"
#include "platform/forms/ThemeColors.h"
#include "render/BlankMap.h"
#include "render/MapSize.h"
#include "ui_MapPage.h"

#include <QDir>

namespace {

const QString LayerFiles =
    QStringLiteral("Layers|*.gpkg;*.shp;*.geojson;*.json;*.kml;*.kmz;*.gpx;*.zip|All files|*");

bool goOn(int, int, const QString&)
{
    return true;
}

} // namespace

MapPage::MapPage(SurveyDraft& draft, Dialogs& dialogs, QWidget* parent)
    : DraftPage(draft, parent), m_ui(std::make_unique<Ui::MapPage>()), m_dialogs(dialogs)
{
    m_ui->setupUi(this);
    showAsWarning(*m_ui->lblFault);
    m_preview.Width = firstArea().Width;
    m_preview.Height = firstArea().Height;
    m_ui->picNewMap->setSurface(m_preview, SurfaceView::Fit::WholePaper);
    m_ui->picNewMap->setPlaceholder(QStringLiteral("The map is shown here."));
    connect(m_ui->txtTitle, &QLineEdit::textEdited, this, [this](const QString& title) {
        this->draft().setTitle(title);
        workSoon();
    });
    connect(m_ui->cboProjection, &QComboBox::activated, this, &MapPage::takeProjection);
    connect(m_ui->spnEpsg, &QSpinBox::valueChanged, this, &MapPage::takeProjection);
    connect(m_ui->cmdAddLayer, &QPushButton::clicked, this, &MapPage::cmdAddLayer_Click);
    connect(m_ui->cmdRemoveLayer, &QPushButton::clicked, this, &MapPage::cmdRemoveLayer_Click);
    m_ui->spnEpsg->hide();
}

MapPage::~MapPage() = default;

void MapPage::initializePage()
{
    m_ui->txtTitle->setText(draft().title());
    m_ui->txtTitle->setCursorPosition(0);
    workNow();
}

void MapPage::cmdAddLayer_Click()
{
    const QListWidgetItem* last = m_ui->lstLayers->item(m_ui->lstLayers->count() - 1);
    const QString folder = QFileInfo(last ? last->text() : draft().source().choices().path).path();
    if (const auto layer = m_dialogs.openFile(QStringLiteral("Layer of the Base Map"), folder, LayerFiles)) {
        m_ui->lstLayers->addItem(QDir::toNativeSeparators(*layer));
        takeLayers();
    }
}

void MapPage::cmdRemoveLayer_Click()
{
    delete m_ui->lstLayers->takeItem(m_ui->lstLayers->currentRow());
    takeLayers();
}

void MapPage::takeLayers()
{
    QStringList layers;
    for (int row = 0; row < m_ui->lstLayers->count(); ++row) {
        layers << QDir::fromNativeSeparators(m_ui->lstLayers->item(row)->text());
    }
    draft().setBaseMap(layers);
    workSoon();
}

void MapPage::takeProjection()
{
    const QStringList projections = {QStringLiteral("laea"), QStringLiteral("tmerc"), m_ui->spnEpsg->text()};
    const int chosen = m_ui->cboProjection->currentIndex();
    m_ui->spnEpsg->setVisible(chosen == 2);
    draft().setProjection(projections[chosen]);
    workSoon();
}

void MapPage::work()
{
    draft().make(goOn);
    m_preview.Cls();
    if (draft().made()) {
        drawPreview();
    }
    m_ui->picNewMap->refresh();
    tell(*m_ui->lblFault, draft().made() ? QString() : draft().fault());
}

void MapPage::drawPreview()
{
    const NewSurvey& survey = *draft().made();
    BaseMap map;
    static_cast<Localities&>(map) = survey.localities;
    static_cast<MapLines&>(map) = survey.lines;
    static_cast<PlaceNames&>(map) = survey.placeNames;
    MapStyle style;
    style.PlotDots = true;
    MapGeometry geometry;
    DrawBlankMap({map, style, QString(), geometry}, {{m_preview, m_preview}, firstArea()});
}

bool MapPage::isComplete() const
{
    return draft().made().has_value();
}
