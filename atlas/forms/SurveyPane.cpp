#include "atlas/forms/SurveyPane.h"

#include "atlas/AtlasSurveyMaps.h"
#include "atlas/GroupMarksTable.h"
#include "platform/FileName.h"
#include "shell/VarnModule.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Kind = AtlasMapKind;

QSpinBox* numberBox(const char* name, const QString& title, int least, int most)
{
    auto* box = new QSpinBox; // the form takes it
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(title);
    box->setRange(least, most);
    box->setKeyboardTracking(false);
    return box;
}

} // namespace

SurveyPane::SurveyPane(const VarnModule& varn, AtlasSurveyMaps& survey)
    : m_varn(varn), m_survey(survey), m_rows(new QFormLayout), m_title(new QLabel),
      m_marks(new GroupMarksTable)
{
    m_marks->setParent(this);
    auto* content = new QWidget;
    content->setLayout(m_rows);
    auto* scroll = new QScrollArea;
    scroll->setWidget(content);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(scroll);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_rows->addRow(m_title);
    addSource();
    addClusters();
    addLook();
    addMarks();
    addWork();
    connect(&m_survey, &AtlasSurveyMaps::changed, this, &SurveyPane::showFound);
    connect(&m_survey, &AtlasSurveyMaps::progressed, this, &SurveyPane::showProgress);
    showKind(m_kind);
}

void SurveyPane::addRow(const QString& label, QWidget* row, Kinds kinds)
{
    if (label.isEmpty()) {
        m_rows->addRow(row);
    } else {
        m_rows->addRow(label, row);
    }
    m_kindsOfRow.emplace_back(row, kinds);
}

QComboBox* SurveyPane::addChoice(const char* name, const QString& label, const QStringList& choices,
                                 Kinds kinds)
{
    auto* box = new QComboBox; // the form takes it
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(QString(label).remove(u'&'));
    box->addItems(choices);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    addRow(label, box, kinds);
    return box;
}

QCheckBox* SurveyPane::addSwitch(const char* name, const QString& text, Kinds kinds)
{
    auto* box = new QCheckBox(text);
    box->setObjectName(QLatin1String(name));
    addRow({}, box, kinds);
    return box;
}

void SurveyPane::addSource()
{
    const Kinds distances = {Kind::Reference, Kind::Beams,       Kind::Clusters,  Kind::Dendrogram,
                             Kind::Scaling,   Kind::ScalingPlot, Kind::LengthPlot};
    const Kinds all = {Kind::Bundles,    Kind::Reference, Kind::Beams,       Kind::Clusters,
                       Kind::Dendrogram, Kind::Scaling,   Kind::ScalingPlot, Kind::LengthPlot};

    m_compared = new QLabel;
    m_compared->setObjectName(QStringLiteral("lblCompared"));
    m_compared->setTextFormat(Qt::PlainText);
    m_compared->setWordWrap(true);
    addRow({}, m_compared, all);
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* name, const QString& text, const QString& tip,
                         void (SurveyPane::*signal)()) {
        auto* button = new QPushButton(text);
        button->setObjectName(QLatin1String(name));
        button->setToolTip(tip);
        button->setAccessibleName(tip);
        connect(button, &QPushButton::clicked, this, signal);
        row->addWidget(button);
    };
    add("cmdItems", QStringLiteral("&Items..."),
        QStringLiteral("Choose the items that localities are compared by"), &SurveyPane::itemsWanted);
    add("cmdOpenDistances", QStringLiteral("Open..."), QStringLiteral("Take distances from a file"),
        &SurveyPane::openWanted);
    add("cmdSaveDistances", QStringLiteral("Save..."), QStringLiteral("Save the distances to a file"),
        &SurveyPane::saveWanted);
    addRow({}, buttons, all);
    m_answers = addChoice("cboAnswers", QStringLiteral("&Compare"),
                          {QStringLiteral("Word forms"), QStringLiteral("Kinds by their symbols")}, all);
    m_measure = addChoice("cboMeasure", QStringLiteral("&Distance"),
                          {QStringLiteral("Relative identity"), QStringLiteral("Weighted identity"),
                           QStringLiteral("Levenshtein")},
                          distances);
    m_vowels = addSwitch("chkVowels", QStringLiteral("V&owels never against consonants"), distances);
    connect(m_answers, &QComboBox::activated, this, &SurveyPane::setSource);
    connect(m_measure, &QComboBox::activated, this, &SurveyPane::setSource);
    connect(m_vowels, &QCheckBox::clicked, this, &SurveyPane::setSource);
}

void SurveyPane::addClusters()
{
    constexpr int MostGroups = 100;
    constexpr double MostNoise = 5;
    const Kinds groups = {Kind::Clusters, Kind::Dendrogram, Kind::ScalingPlot};

    m_method = addChoice("cboMethod", QStringLiteral("&Join by"),
                         {QStringLiteral("Single linkage"), QStringLiteral("Complete linkage"),
                          QStringLiteral("Average linkage"), QStringLiteral("Weighted average"),
                          QStringLiteral("Ward's method")},
                         groups);
    m_groups = numberBox("spnGroups", QStringLiteral("Groups"), 1, MostGroups);
    addRow(QStringLiteral("&Groups"), m_groups, groups);
    m_noise = new QDoubleSpinBox;
    m_noise->setObjectName(QStringLiteral("spnNoise"));
    m_noise->setAccessibleName(QStringLiteral("Noise"));
    m_noise->setRange(0, MostNoise);
    m_noise->setSingleStep(0.1);
    m_noise->setKeyboardTracking(false);
    m_noise->setSpecialValueText(QStringLiteral("None"));
    m_noise->setToolTip(QStringLiteral("The tree is made a hundred times with random noise, at most so many "
                                       "standard deviations: borders that stay are dark."));
    addRow(QStringLiteral("&Noise"), m_noise, {Kind::Clusters});
    m_seed = numberBox("spnSeed", QStringLiteral("Noise begins with"), 1, 999999);
    addRow(QStringLiteral("Noise &begins with"), m_seed, {Kind::Clusters});
    connect(m_method, &QComboBox::activated, this, &SurveyPane::setSettings);
    connect(m_groups, &QSpinBox::valueChanged, this, &SurveyPane::setSettings);
    connect(m_noise, &QDoubleSpinBox::valueChanged, this, &SurveyPane::setSettings);
    connect(m_seed, &QSpinBox::valueChanged, this, &SurveyPane::setSettings);
}

void SurveyPane::addLook()
{
    m_locality = addChoice("cboLocality", QStringLiteral("&Locality"), {}, {Kind::Reference});
    m_classes = addChoice(
        "cboClasses", QStringLiteral("Cl&asses"),
        {QStringLiteral("Three below and three above the mean"), QStringLiteral("Six of one width")},
        {Kind::Reference});
    m_hatched = addSwitch("chkHatched", QStringLiteral("&Patterns for print without colours"),
                          {Kind::Areas, Kind::Reference, Kind::Clusters, Kind::Dendrogram});
    m_withSymbols = addSwitch("chkWithSymbols", QStringLiteral("S&ymbols on the areas"), {Kind::Areas});
    m_groupSymbols =
        addSwitch("chkGroupSymbols", QStringLiteral("A s&ymbol at each locality"), {Kind::Clusters});
    m_tree = addSwitch("chkTree", QStringLiteral("&Tree beside the map"), {Kind::Clusters});
    m_smooth = addSwitch("chkSmooth", QStringLiteral("&Rounded lines"), {Kind::Isoglosses, Kind::Bundles});
    m_numbers = addSwitch("chkNumbers", QStringLiteral("&Numbers on the strongest"), {Kind::Bundles});
    for (QComboBox* box : {m_locality, m_classes}) {
        connect(box, &QComboBox::activated, this, &SurveyPane::setSettings);
    }
    for (QCheckBox* box : {m_hatched, m_groupSymbols, m_tree}) {
        connect(box, &QCheckBox::clicked, this, &SurveyPane::setSettings);
    }
    for (QCheckBox* box : {m_withSymbols, m_smooth, m_numbers}) {
        connect(box, &QCheckBox::clicked, this, &SurveyPane::setStyle);
    }
}

void SurveyPane::addMarks()
{
    m_group = addChoice("cboGroup", QStringLiteral("&What marks"), {}, {Kind::Clusters});
    m_marksView = new QTableView;
    m_marksView->setObjectName(QStringLiteral("tblMarks"));
    m_marksView->setAccessibleName(QStringLiteral("What marks the group"));
    m_marksView->setModel(m_marks);
    m_marksView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_marksView->setTabKeyNavigation(false);
    m_marksView->verticalHeader()->hide();
    m_marksView->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (const int column : {GroupMarksTable::Item, GroupMarksTable::WordForm}) {
        m_marksView->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    }
    m_marksView->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_marksView->setMinimumHeight(220);
    addRow({}, m_marksView, {Kind::Clusters});
    connect(m_group, &QComboBox::currentIndexChanged, this, &SurveyPane::showMarks);
}

void SurveyPane::addWork()
{
    m_notes = new QLabel;
    m_notes->setObjectName(QStringLiteral("lblNotes"));
    m_notes->setTextFormat(Qt::PlainText);
    m_notes->setWordWrap(true);
    m_notes->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_rows->addRow(m_notes);
    m_progress = new QProgressBar;
    m_progress->setObjectName(QStringLiteral("barProgress"));
    m_progress->setAccessibleName(QStringLiteral("Progress"));
    m_stop = new QToolButton;
    m_stop->setObjectName(QStringLiteral("cmdStop"));
    m_stop->setText(QStringLiteral("Stop"));
    m_stop->setFocusPolicy(Qt::StrongFocus);
    connect(m_stop, &QToolButton::clicked, &m_survey, &AtlasSurveyMaps::stop);
    auto* row = new QHBoxLayout;
    row->addWidget(m_progress, 1);
    row->addWidget(m_stop);
    m_rows->addRow(row);
    showProgress(0, 0);
}

void SurveyPane::showKind(AtlasMapKind kind)
{
    m_kind = kind;
    m_title->setText(nameOf(kind));
    for (const auto& [row, kinds] : m_kindsOfRow) {
        m_rows->setRowVisible(row, std::ranges::find(kinds, kind) != kinds.end());
    }
    showSettings();
    showFound();
}

void SurveyPane::setSource()
{
    SurveySource source = m_survey.source();
    source.answers = {static_cast<AnswersBy>(m_answers->currentIndex()), m_varn.WholeWordForms};
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
    settings.reference = std::max(0, m_locality->currentIndex());
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
    const QSignalBlocker quiet[] = {QSignalBlocker(m_groups), QSignalBlocker(m_noise),
                                    QSignalBlocker(m_seed)};
    m_answers->setCurrentIndex(static_cast<int>(source.answers.by));
    m_measure->setCurrentIndex(static_cast<int>(source.measure.measure));
    m_vowels->setChecked(source.measure.vowelsApart);
    m_vowels->setEnabled(source.measure.measure == DistanceMeasure::Levenshtein);
    for (QWidget* control : {static_cast<QWidget*>(m_answers), static_cast<QWidget*>(m_measure)}) {
        control->setEnabled(source.distancesFile.isEmpty());
    }
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

QString SurveyPane::compared() const
{
    const SurveySource& source = m_survey.source();
    if (!source.distancesFile.isEmpty()) {
        return QStringLiteral("Distances of the file %1").arg(fileNameOf(source.distancesFile));
    }
    const auto survey = m_survey.survey();
    return survey ? QStringLiteral("Answers to %1 items").arg(survey->answers.items.size())
                  : QStringLiteral("Answers to the items");
}

void SurveyPane::showFound()
{
    if (m_locality->count() != m_varn.NLocality) {
        m_locality->clear();
        for (int i = 1; i <= m_varn.NLocality; ++i) {
            m_locality->addItem(localityTitle(m_varn, i));
        }
    }
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

void SurveyPane::showMarks()
{
    const int group = m_group->currentIndex() + 1;
    m_marks->setGroup(group > 0 && m_kind == Kind::Clusters ? m_survey.survey() : nullptr,
                      m_survey.findings().groups, group);
}

void SurveyPane::showProgress(int done, int of)
{
    const bool isBusy = m_survey.isBusy();
    m_progress->setVisible(isBusy);
    m_stop->setVisible(isBusy);
    m_progress->setRange(0, of);
    m_progress->setValue(done);
}
