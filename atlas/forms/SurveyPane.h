#pragma once

#include "atlas/AtlasMapKind.h"

#include <QWidget>

#include <functional>
#include <initializer_list>

class AtlasSurveyMaps;
class GroupMarksTable;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLayout;
class QProgressBar;
class QSpinBox;
class QTableView;
class QToolButton;
struct VarnModule;

/// The settings of maps of areas and of the survey as a whole, what was found of it, and how far the work
/// is. Only what the map that is shown depends on can be seen.
class SurveyPane : public QWidget
{
    Q_OBJECT

public:
    SurveyPane(const VarnModule& varn, AtlasSurveyMaps& survey);

    /// Shows the settings of that kind of map.
    void showKind(AtlasMapKind kind);

Q_SIGNALS:
    /// The user wants to choose the items that are compared.
    void itemsWanted();
    /// The user wants to take distances from a file, or to save those that were found.
    void openWanted();
    void saveWanted();
    /// The user wants the distances to that locality (from 1).
    void localityWanted(int locality);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Kinds = std::initializer_list<AtlasMapKind>;
    /// The row of the choice what marks are listed.
    static constexpr int ByItems = 1;

    void addSource();
    void addClusters();
    void addLook();
    void addMarks();
    QLayout* progressRow();
    QWidget* scrolledSettings();
    void keepFromWheel();
    void addRow(const QString& label, QWidget* row, Kinds kinds);
    QComboBox* addChoice(const char* name, const QString& label, const QStringList& choices, Kinds kinds);
    QCheckBox* addSwitch(const char* name, const QString& text, Kinds kinds);

    void setSource();
    void setSettings();
    void setStyle();
    void showSettings();
    void showFound();
    void showMarks();
    void listMarks();
    void showProgress(int done, int of);
    void showLocalities();
    /// Whether what is shown is made of distances of a file.
    bool isOfFile() const;
    QString compared() const;

    const VarnModule& m_varn;
    AtlasSurveyMaps& m_survey;
    AtlasMapKind m_kind = AtlasMapKind::Linguistic;
    QFormLayout* m_rows;
    /// The rows, and the kinds of map that each is shown for.
    std::vector<std::pair<QWidget*, std::vector<AtlasMapKind>>> m_kindsOfRow;
    QLabel* m_title;
    QLabel* m_compared;
    QComboBox* m_answers = nullptr;
    QComboBox* m_measure = nullptr;
    QCheckBox* m_vowels = nullptr;
    QComboBox* m_method = nullptr;
    QSpinBox* m_groups = nullptr;
    QDoubleSpinBox* m_noise = nullptr;
    QSpinBox* m_seed = nullptr;
    QComboBox* m_locality = nullptr;
    QStringList m_localities;
    QComboBox* m_classes = nullptr;
    QCheckBox* m_hatched = nullptr;
    QCheckBox* m_groupSymbols = nullptr;
    QCheckBox* m_tree = nullptr;
    QCheckBox* m_smooth = nullptr;
    QCheckBox* m_numbers = nullptr;
    QCheckBox* m_withSymbols = nullptr;
    QComboBox* m_group = nullptr;
    QComboBox* m_marksBy = nullptr;
    GroupMarksTable* m_marks;
    QTableView* m_marksView = nullptr;
    QLabel* m_notes;
    QProgressBar* m_progress = nullptr;
    QToolButton* m_stop = nullptr;
    QToolButton* m_goOn = nullptr;
};
