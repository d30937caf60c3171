#include "atlas/forms/SurveyPane.h"

#include "atlas/AtlasSurveyMaps.h"
#include "atlas/GroupMarksTable.h"
#include "platform/FileName.h"
#include "shell/VarnModule.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

using Kind = AtlasMapKind;

/// Shows lines of plain text, broken where they are too long.
QLabel* textLabel()
{
    auto* label = new QLabel; // a layout takes it
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

SurveyPane::SurveyPane(const VarnModule& varn, AtlasSurveyMaps& survey)
    : m_varn(varn), m_survey(survey), m_rows(new QFormLayout), m_title(new QLabel), m_compared(textLabel()),
      m_marks(new GroupMarksTable), m_notes(textLabel())
{
    m_marks->setParent(this);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_compared->setObjectName(QStringLiteral("lblCompared"));
    m_notes->setObjectName(QStringLiteral("lblNotes"));
    m_notes->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    addSource();
    addClusters();
    addLook();
    addMarks();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(scrolledSettings(), 1);
    column->addLayout(progressRow());
    keepFromWheel();
    connect(&m_survey, &AtlasSurveyMaps::changed, this, &SurveyPane::showFound);
    connect(&m_survey, &AtlasSurveyMaps::progressed, this, &SurveyPane::showProgress);
    showKind(m_kind);
}

/// The rows stand apart from texts that are broken into lines: beside such a text, a form layout gives a row
/// the height of one that is hidden.
QWidget* SurveyPane::scrolledSettings()
{
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->addWidget(m_title);
    column->addWidget(m_compared);
    column->addLayout(m_rows);
    column->addWidget(m_notes);
    column->addStretch();
    auto* scroll = new QScrollArea;
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    return scroll;
}

/// The wheel scrolls the settings, and changes only the one that has the focus.
void SurveyPane::keepFromWheel()
{
    for (QWidget* box : findChildren<QWidget*>()) {
        if (qobject_cast<QComboBox*>(box) != nullptr || qobject_cast<QAbstractSpinBox*>(box) != nullptr) {
            box->setFocusPolicy(Qt::StrongFocus);
            box->installEventFilter(this);
        }
    }
}

bool SurveyPane::eventFilter(QObject* watched, QEvent* event)
{
    const auto* box = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Wheel && box != nullptr && !box->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void SurveyPane::showKind(AtlasMapKind kind)
{
    m_kind = kind;
    m_title->setText(nameOf(kind));
    m_compared->setVisible(isOfSurvey(kind));
    for (const auto& [row, kinds] : m_kindsOfRow) {
        m_rows->setRowVisible(row, std::ranges::find(kinds, kind) != kinds.end());
    }
    showSettings();
    showFound();
}

void SurveyPane::setSource()
{
    SurveySource source = m_survey.source();
    source.answers.by = static_cast<AnswersBy>(m_answers->currentIndex());
    source.measure = {static_cast<DistanceMeasure>(m_measure->currentIndex()), m_vowels->isChecked()};
    m_survey.setSource(source);
    showSettings();
}

void SurveyPane::setSettings()
{
    DistanceMapSettings settings = m_survey.settings();
    settings.method = static_cast<LinkageMethod>(m_method->currentIndex());
    settings.groups = m_groups->value();
    settings.noise.noise = m_noise->value();
    settings.noise.seed = static_cast<std::uint64_t>(m_seed->value());
    settings.rule = static_cast<ClassRule>(m_classes->currentIndex());
    settings.look = m_hatched->isChecked() ? AreaLook::Hatched : AreaLook::Colored;
    settings.symbols = m_groupSymbols->isChecked();
    settings.withDendrogram = m_tree->isChecked();
    m_survey.setSettings(settings);
    showSettings();
}

void SurveyPane::setStyle()
{
    m_survey.setIsoglossStyle({m_smooth->isChecked(), m_numbers->isChecked()});
    m_survey.setWithSymbols(m_withSymbols->isChecked());
}

void SurveyPane::showSettings()
{
    const SurveySource& source = m_survey.source();
    const DistanceMapSettings& settings = m_survey.settings();
    const std::array quiet = {QSignalBlocker(m_groups), QSignalBlocker(m_noise), QSignalBlocker(m_seed)};
    m_answers->setCurrentIndex(static_cast<int>(source.answers.by));
    m_measure->setCurrentIndex(static_cast<int>(source.measure.measure));
    m_vowels->setChecked(source.measure.vowelsApart);
    m_answers->setEnabled(!isOfFile());
    m_measure->setEnabled(!isOfFile());
    m_vowels->setEnabled(!isOfFile() && source.measure.measure == DistanceMeasure::Levenshtein);
    auto& measures = *qobject_cast<QStandardItemModel*>(m_measure->model());
    measures.item(static_cast<int>(DistanceMeasure::Levenshtein))
        ->setEnabled(source.answers.by == AnswersBy::WordForms);
    m_method->setCurrentIndex(static_cast<int>(settings.method));
    m_groups->setValue(settings.groups);
    m_noise->setValue(settings.noise.noise);
    m_seed->setValue(static_cast<int>(settings.noise.seed));
    m_rows->setRowVisible(m_seed, m_kind == Kind::Clusters && settings.noise.noise > 0);
    m_locality->setCurrentIndex(settings.reference);
    m_classes->setCurrentIndex(static_cast<int>(settings.rule));
    m_hatched->setChecked(settings.look == AreaLook::Hatched);
    m_groupSymbols->setChecked(settings.symbols);
    m_tree->setChecked(settings.withDendrogram);
    m_smooth->setChecked(m_survey.isoglossStyle().smooth);
    m_numbers->setChecked(m_survey.isoglossStyle().numbers);
    m_withSymbols->setChecked(m_survey.withSymbols());
}

/// Isoglosses are of items whatever the distances are of.
bool SurveyPane::isOfFile() const
{
    return m_kind != Kind::Bundles && !m_survey.source().distancesFile.isEmpty();
}

QString SurveyPane::compared() const
{
    if (isOfFile()) {
        return QStringLiteral("Distances of the file %1").arg(fileNameOf(m_survey.source().distancesFile));
    }
    const auto survey = m_survey.survey();
    const std::size_t items = survey ? survey->answers.items.size() : 0;
    if (items == 0) {
        return QStringLiteral("Answers to the items");
    }
    const QString answers =
        items == 1 ? QStringLiteral("Answers to 1 item") : QStringLiteral("Answers to %1 items").arg(items);
    const qsizetype leftOut = survey->leftOut.size(); // named under the settings
    return leftOut == 0 ? answers : answers + QStringLiteral(", %1 left out").arg(leftOut);
}

/// Another map may have as many localities.
void SurveyPane::showLocalities()
{
    QStringList names;
    for (int i = 1; i <= m_varn.NLocality; ++i) {
        names << localityTitle(m_varn, i);
    }
    if (names != m_localities) {
        m_localities = names;
        m_locality->clear();
        m_locality->addItems(names);
    }
}

void SurveyPane::showFound()
{
    showLocalities();
    m_compared->setText(compared());
    m_notes->setText(m_survey.trouble().isEmpty() ? m_survey.notes().join(QLatin1Char('\n'))
                                                  : m_survey.trouble());
    const std::vector<int>& groups = m_survey.findings().groups;
    const int count = groups.empty() ? 0 : std::ranges::max(groups);
    const QSignalBlocker quiet(m_group);
    const int shown = std::max(0, m_group->currentIndex());
    m_group->clear();
    for (int group = 1; group <= count; ++group) {
        m_group->addItem(
            QStringLiteral("Group %1 (%2 localities)").arg(group).arg(std::ranges::count(groups, group)));
    }
    m_group->setCurrentIndex(std::min(shown, count - 1));
    showMarks();
    showSettings();
}

/// Distances of a file are not of items that could mark a group.
void SurveyPane::showMarks()
{
    for (QWidget* row : {static_cast<QWidget*>(m_group), static_cast<QWidget*>(m_marksBy),
                         static_cast<QWidget*>(m_marksView)}) {
        m_rows->setRowVisible(row, m_kind == Kind::Clusters && !isOfFile());
    }
    listMarks();
    QHeaderView& header = *m_marksView->horizontalHeader();
    for (int column = 0; column < header.count(); ++column) {
        header.setSectionResizeMode(column, column < m_marks->textColumns() ? QHeaderView::Stretch
                                                                            : QHeaderView::ResizeToContents);
    }
}

void SurveyPane::listMarks()
{
    const auto survey = m_survey.survey();
    const int group = m_group->currentIndex() + 1;
    const std::vector<ItemsOfGroup>& items = m_survey.itemMarks();
    if (!survey || group == 0 || m_kind != Kind::Clusters) {
        m_marks->clear();
    } else if (m_marksBy->currentIndex() != ByItems) {
        m_marks->setForms(*survey, m_survey.findings().groups, group);
    } else {
        m_marks->setItems(*survey,
                          items.empty() ? ItemsOfGroup() : items[static_cast<std::size_t>(group - 1)]);
    }
}

void SurveyPane::showProgress(int done, int of)
{
    const bool isBusy = m_survey.isBusy();
    m_progress->setVisible(isBusy);
    m_goOn->setVisible(m_survey.isStopped() && !isBusy); // before Stop goes, whose focus it takes
    m_stop->setVisible(isBusy);
    m_progress->setRange(0, of);
    m_progress->setValue(done);
}
