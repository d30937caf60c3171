#include "exchange/forms/ColumnsPage.h"

#include "platform/forms/ThemeColors.h"
#include "ui_ColumnsPage.h"

#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace {

/// In the order of `ColumnRole`.
const std::array<const char*, 9> RoleNames = {"Id", "Name", "Longitude", "Latitude",  "x",
                                              "y",  "Item", "Answer",    "(left out)"};
/// In the order of the box.
const std::array<const char*, 6> Separators = {"", ";", " / ", "|", "\n", ","};

int separatorIndex(const QString& separator)
{
    const auto found = std::ranges::find(Separators, separator.toStdString());
    return static_cast<int>(found - Separators.begin());
}

} // namespace

ColumnsPage::ColumnsPage(SurveyDraft& draft, QWidget* parent)
    : DraftPage(draft, parent), m_ui(std::make_unique<Ui::ColumnsPage>())
{
    m_ui->setupUi(this);
    showAsWarning(*m_ui->lblFault);
    connect(m_ui->cboWords, &QComboBox::activated, this, [this](int index) {
        this->draft().source().setWords(static_cast<WordSource>(index));
        workSoon();
    });
    connect(m_ui->cboSeparator, &QComboBox::activated, this, [this](int index) {
        this->draft().source().setAnswerSeparator(
            QLatin1String(Separators.at(static_cast<std::size_t>(index))));
        workSoon();
    });
}

ColumnsPage::~ColumnsPage() = default;

void ColumnsPage::initializePage()
{
    const SourceDraft& source = draft().source();
    showAsked(source.isCldf());
    m_ui->cboWords->setCurrentIndex(static_cast<int>(source.choices().words));
    m_ui->cboSeparator->setCurrentIndex(separatorIndex(source.choices().answerSeparator));
    showRows();
    workNow();
}

/// Shows what is asked of CLDF, which tells its columns itself, or of a table.
void ColumnsPage::showAsked(bool isCldf)
{
    setTitle(isCldf ? QStringLiteral("Word Forms") : QStringLiteral("Columns"));
    setSubTitle(isCldf ? QStringLiteral("What of the data set becomes the word forms of the map.")
                       : QStringLiteral("What the columns are was guessed from their headings and contents. "
                                        "Correct it where it is wrong."));
    m_ui->lblWords->setVisible(isCldf);
    m_ui->cboWords->setVisible(isCldf);
    m_ui->lblSeparator->setVisible(!isCldf);
    m_ui->cboSeparator->setVisible(!isCldf);
    m_ui->tblColumns->setVisible(!isCldf);
}

/// The first rows of the table, the boxes with the roles of its columns above them.
void ColumnsPage::showRows()
{
    constexpr qsizetype FirstRows = 20;
    m_ui->tblColumns->clear();
    const std::optional<SourceTable>& table = draft().source().table();
    if (!table) {
        return;
    }
    const auto rows = std::min(FirstRows, static_cast<qsizetype>(table->rows.size()));
    m_ui->tblColumns->setColumnCount(static_cast<int>(table->headings.size()));
    m_ui->tblColumns->setRowCount(static_cast<int>(rows) + 1);
    m_ui->tblColumns->setHorizontalHeaderLabels(table->headings);
    QStringList numbers{QString()};
    for (int column = 0; column < table->headings.size(); ++column) {
        m_ui->tblColumns->setCellWidget(0, column, roleBox(column));
    }
    for (int row = 0; row < rows; ++row) {
        const TableRow& shown = table->rows[static_cast<std::size_t>(row)];
        numbers << QString::number(shown.number);
        showRow(row + 1, shown.cells);
    }
    m_ui->tblColumns->setVerticalHeaderLabels(numbers);
}

void ColumnsPage::showRow(int row, const QStringList& cells)
{
    for (int column = 0; column < cells.size(); ++column) {
        m_ui->tblColumns->setItem(row, column, new QTableWidgetItem(cells[column]));
    }
}

QComboBox* ColumnsPage::roleBox(int column)
{
    auto* box = new QComboBox(m_ui->tblColumns);
    for (const char* name : RoleNames) {
        box->addItem(QLatin1String(name));
    }
    box->setAccessibleName(draft().source().table()->headings[column]);
    box->setEnabled(draft().source().isCorrectable(column));
    connect(box, &QComboBox::activated, this, [this, column](int role) {
        draft().source().setRole(column, static_cast<ColumnRole>(role));
        workSoon();
    });
    return box;
}

void ColumnsPage::showRoles()
{
    const std::optional<SourceTable>& table = draft().source().table();
    const qsizetype columns = table ? table->headings.size() : 0;
    for (int column = 0; column < std::min<qsizetype>(columns, m_ui->tblColumns->columnCount()); ++column) {
        auto* box = qobject_cast<QComboBox*>(m_ui->tblColumns->cellWidget(0, column));
        box->setCurrentIndex(static_cast<int>(draft().source().role(column)));
    }
}

void ColumnsPage::showSeparator()
{
    const int index = separatorIndex(draft().source().guessedSeparator());
    m_ui->cboSeparator->setItemText(0, index > 0 ? QStringLiteral("as guessed: ") +
                                                       m_ui->cboSeparator->itemText(index)
                                                 : QStringLiteral("as guessed: nothing"));
}

void ColumnsPage::work()
{
    SourceDraft& source = draft().source();
    if (!source.survey()) {
        source.read();
    }
    showRoles();
    showSeparator();
    tell(*m_ui->lblRecognised, source.description());
    tell(*m_ui->lblFault, source.fault());
}

bool ColumnsPage::isComplete() const
{
    return draft().source().survey().has_value();
}

bool ColumnsPage::validatePage()
{
    if (!DraftPage::validatePage()) {
        return false;
    }
    draft().takeSource();
    return true;
}
