#include "exchange/forms/SourcePage.h"

#include "platform/Dialogs.h"
#include "platform/forms/ThemeColors.h"
#include "ui_SourcePage.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString AllFiles = QStringLiteral("|All files|*");
const QString LocalityFiles =
    QStringLiteral("Tables and layers"
                   "|*.csv;*.tsv;*.tab;*.txt;*.xlsx;*.ods;*.kml;*.kmz;*.geojson;*.gpkg;*.shp;*.gpx;*.zip");
const QString SourceFiles = QStringLiteral(
    "Tables, layers and CLDF"
    "|*.csv;*.tsv;*.tab;*.txt;*.u16;*.xlsx;*.ods;*.kml;*.kmz;*.geojson;*.gpkg;*.shp;*.gpx;*.json;*.zip");

} // namespace

SourcePage::SourcePage(SurveyDraft& draft, Dialogs& dialogs, QWidget* parent)
    : DraftPage(draft, parent), m_ui(std::make_unique<Ui::SourcePage>()), m_dialogs(dialogs)
{
    m_ui->setupUi(this);
    showAsWarning(*m_ui->lblFault);
    connect(m_ui->txtSource, &QLineEdit::textChanged, this, &SourcePage::workSoon);
    connect(m_ui->txtLocalities, &QLineEdit::textChanged, this, &SourcePage::workSoon);
    connect(m_ui->cmdSourceFile, &QPushButton::clicked, this, &SourcePage::cmdSourceFile_Click);
    connect(m_ui->cmdSourceFolder, &QPushButton::clicked, this, &SourcePage::cmdSourceFolder_Click);
    connect(m_ui->cmdLocalities, &QPushButton::clicked, this, &SourcePage::cmdLocalities_Click);
}

SourcePage::~SourcePage() = default;

void SourcePage::setSource(const QString& path)
{
    m_ui->txtSource->setText(QDir::toNativeSeparators(path));
    workNow();
}

QString SourcePage::folder() const
{
    const QString source = m_ui->txtSource->text();
    return source.isEmpty() ? QDir::homePath() : QFileInfo(source).path();
}

void SourcePage::cmdSourceFile_Click()
{
    if (const auto file = m_dialogs.openFile(QStringLiteral("Source of the New Survey"), folder(),
                                             SourceFiles + AllFiles)) {
        setSource(*file);
    }
}

void SourcePage::cmdSourceFolder_Click()
{
    if (const auto chosen = m_dialogs.chooseFolder(QStringLiteral("Folder of a CLDF Data Set"), folder())) {
        setSource(*chosen);
    }
}

void SourcePage::cmdLocalities_Click()
{
    if (const auto file = m_dialogs.openFile(QStringLiteral("Localities of the New Survey"), folder(),
                                             LocalityFiles + AllFiles)) {
        m_ui->txtLocalities->setText(QDir::toNativeSeparators(*file));
        workNow();
    }
}

void SourcePage::work()
{
    SourceDraft& source = draft().source();
    source.setPath(QDir::fromNativeSeparators(m_ui->txtSource->text()));
    source.setLocalities(QDir::fromNativeSeparators(m_ui->txtLocalities->text()));
    if (!source.choices().path.isEmpty()) {
        source.read();
    }
    tell(*m_ui->lblRecognised, source.description());
    tell(*m_ui->lblFault, source.fault());
}

bool SourcePage::isComplete() const
{
    return draft().source().isOpen();
}
