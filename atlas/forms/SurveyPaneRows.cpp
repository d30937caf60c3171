// The rows of the pane: each control, and the kinds of map that it is shown for.

#include "atlas/AtlasSurveyMaps.h"
#include "atlas/GroupMarksTable.h"
#include "atlas/forms/SurveyPane.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QToolButton>

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
    addRow(QStringLiteral("Noise begins with"), m_seed, {Kind::Clusters});
    connect(m_method, &QComboBox::activated, this, &SurveyPane::setSettings);
    connect(m_groups, &QSpinBox::valueChanged, this, &SurveyPane::setSettings);
    connect(m_noise, &QDoubleSpinBox::valueChanged, this, &SurveyPane::setSettings);
    connect(m_seed, &QSpinBox::valueChanged, this, &SurveyPane::setSettings);
}

void SurveyPane::addLook()
{
    m_locality = addChoice("cboLocality", QStringLiteral("&Locality"), {}, {Kind::Reference});
    m_classes =
        addChoice("cboClasses", QStringLiteral("Cl&asses"),
                  {QStringLiteral("Three on each side of the mean"), QStringLiteral("Six of one width")},
                  {Kind::Reference});
    m_hatched = addSwitch("chkHatched", QStringLiteral("&Patterns for print without colours"),
                          {Kind::Areas, Kind::Reference, Kind::Clusters, Kind::Dendrogram});
    m_withSymbols = addSwitch("chkWithSymbols", QStringLiteral("S&ymbols on the areas"), {Kind::Areas});
    m_groupSymbols =
        addSwitch("chkGroupSymbols", QStringLiteral("A s&ymbol at each locality"), {Kind::Clusters});
    m_tree = addSwitch("chkTree", QStringLiteral("&Tree beside the map"), {Kind::Clusters});
    m_smooth = addSwitch("chkSmooth", QStringLiteral("&Rounded lines"), {Kind::Isoglosses, Kind::Bundles});
    m_numbers = addSwitch("chkNumbers", QStringLiteral("&Numbers on the strongest"), {Kind::Bundles});
    connect(m_locality, &QComboBox::activated, this, [this](int row) { Q_EMIT localityWanted(row + 1); });
    connect(m_classes, &QComboBox::activated, this, &SurveyPane::setSettings);
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
    m_marksBy = addChoice("cboMarksBy", QStringLiteral("Shown &by"),
                          {QStringLiteral("Its word forms"), QStringLiteral("The items it is known by")},
                          {Kind::Clusters});
    m_marksView = new QTableView;
    m_marksView->setObjectName(QStringLiteral("tblMarks"));
    m_marksView->setAccessibleName(QStringLiteral("What marks the group"));
    m_marksView->setModel(m_marks);
    m_marksView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_marksView->setTabKeyNavigation(false);
    m_marksView->verticalHeader()->hide();
    m_marksView->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_marksView->setMinimumHeight(220);
    addRow({}, m_marksView, {Kind::Clusters});
    connect(m_group, &QComboBox::currentIndexChanged, this, &SurveyPane::showMarks);
    connect(m_marksBy, &QComboBox::activated, this, [this](int row) {
        m_survey.setWithItemMarks(row == ByItems);
        showMarks();
    });
}

/// Under the settings, so that it is always seen.
QLayout* SurveyPane::progressRow()
{
    constexpr int RowRim = 9;

    m_progress = new QProgressBar;
    m_progress->setObjectName(QStringLiteral("barProgress"));
    m_progress->setAccessibleName(QStringLiteral("Progress"));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(RowRim, 0, RowRim, 0);
    row->addWidget(m_progress, 1);
    const auto add = [&](const char* name, const QString& text, void (AtlasSurveyMaps::*slot)()) {
        auto* button = new QToolButton; // the row takes it
        button->setObjectName(QLatin1String(name));
        button->setText(text);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, &m_survey, slot);
        row->addWidget(button);
        return button;
    };
    m_stop = add("cmdStop", QStringLiteral("Stop"), &AtlasSurveyMaps::stop);
    m_goOn = add("cmdGoOn", QStringLiteral("Go On"), &AtlasSurveyMaps::goOn);
    showProgress(0, 0);
    return row;
}
