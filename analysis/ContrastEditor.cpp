#include "analysis/ContrastEditor.h"

#include "platform/Numbers.h"
#include "platform/StandardColors.h"

#include <QLocale>

#include <array>

namespace {

constexpr int EmptyBox = -1;
/// Outline and fill of sides 1 and 2 where no colour was chosen.
constexpr std::array DefaultColors = {StandardColor::LightRed, StandardColor::LightBlue};

int defaultColor(int side)
{
    return static_cast<int>(DefaultColors.at(static_cast<std::size_t>(side) - 1));
}

QString stepsText(const ContrastData& contrast)
{
    return QString::number(contrast.ContrastSteps - 1, 'g', QLocale::FloatingPointShortest);
}

int colorBox(int number)
{
    return number >= 0 && number < standardColorNames().size() ? number : EmptyBox;
}

bool isOfTable(const CumulativeTable& table, int k)
{
    return k >= 1 && k <= table.NumWordforms;
}

void requireOfTable(const CumulativeTable& table, int k, const QString& name)
{
    if (!isOfTable(table, k)) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("The cumulative data has no word form %1 (%2); it has %3.")
                               .arg(k)
                               .arg(name)
                               .arg(table.NumWordforms));
    }
}

} // namespace

ContrastSettings settingsOf(const ContrastBoxes& boxes, const ContrastData& contrast)
{
    ContrastSettings settings{boxes, {}};
    for (int side = 1; side <= 2; ++side) {
        for (int t = 1; t <= contrast.ContrastCount(side); ++t) {
            settings.wordforms(side).push_back(contrast.ContrastWord(side, t));
        }
    }
    return settings;
}

ContrastBoxes newContrastBoxes()
{
    ContrastBoxes boxes;
    boxes.steps = QStringLiteral("6");
    boxes.size = QStringLiteral("150");
    for (int side = 1; side <= 2; ++side) {
        boxes.setColor(side) = EmptyBox;
        boxes.fillColor(side) = EmptyBox;
    }
    return boxes;
}

ContrastBoxes boxesOf(const ContrastData& contrast)
{
    ContrastBoxes boxes;
    boxes.title = contrast.ContrastTitle;
    boxes.steps = stepsText(contrast);
    boxes.size = QString::number(contrast.ContrastMaxSize);
    for (int side = 1; side <= 2; ++side) {
        boxes.setColor(side) = colorBox(contrast.ContrastSymbolColor(side));
        boxes.fillColor(side) = colorBox(contrast.ContrastPaintColor(side));
    }
    return boxes;
}

void SetRankData(ContrastBoxes& boxes, ContrastData& contrast)
{
    const qint16 size = toInteger(Val(boxes.size));
    contrast.ContrastMaxSize = size;
    contrast.ContrastTitle = boxes.title;
    if (boxes.steps != stepsText(contrast)) {
        contrast.ContrastSteps = Val(boxes.steps) + 1;
    }
    for (int side = 1; side <= 2; ++side) {
        for (int* box : {&boxes.setColor(side), &boxes.fillColor(side)}) {
            *box = *box == EmptyBox ? defaultColor(side) : *box;
        }
        contrast.ContrastSymbolColor(side) = boxes.setColor(side);
        contrast.ContrastPaintColor(side) = static_cast<qint16>(boxes.fillColor(side));
    }
}

QStringList ContrastEditor::wordforms(int side) const
{
    QStringList names;
    for (int t = 1; t <= m_contrast.ContrastCount(side); ++t) {
        names << m_contrast.ContrastWordName(side, t);
    }
    return names;
}

bool ContrastEditor::has(int side, int k) const
{
    for (int t = 1; t <= m_contrast.ContrastCount(side); ++t) {
        if (m_contrast.ContrastWord(side, t) == k) {
            return true;
        }
    }
    return false;
}

ContrastEditor::AddResult ContrastEditor::addWordform(int side, int k)
{
    requireOfTable(m_table, k, QString());
    if (has(side, k)) {
        return AddResult::Present;
    }
    const int t = m_contrast.ContrastCount(side) + 1;
    if (t > MaxWordforms) {
        return AddResult::Full;
    }
    m_contrast.ContrastWordName(side, t) = m_table.WordformName(k);
    m_contrast.ContrastWord(side, t) = static_cast<qint16>(k);
    m_contrast.ContrastCount(side) = t;
    outdateSums(m_contrast);
    return AddResult::Added;
}

void ContrastEditor::removeWordform(int side, int t)
{
    int& count = m_contrast.ContrastCount(side);
    if (t < 1 || t > count) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("Item %1 has no word form in place %2.").arg(side).arg(t));
    }
    for (int place = t; place < count; ++place) {
        m_contrast.ContrastWordName(side, place) = m_contrast.ContrastWordName(side, place + 1);
        m_contrast.ContrastWord(side, place) = m_contrast.ContrastWord(side, place + 1);
    }
    --count;
    outdateSums(m_contrast);
}

void ContrastEditor::followTable(int localities)
{
    for (int side = 1; side <= 2; ++side) {
        for (int t = 1; t <= m_contrast.ContrastCount(side); ++t) {
            const int k = m_contrast.ContrastWord(side, t);
            if (isOfTable(m_table, k)) {
                m_contrast.ContrastWordName(side, t) = m_table.WordformName(k);
            }
        }
    }
    if (!sumsAreCurrent(localities)) {
        outdateSums(m_contrast);
    }
}

bool ContrastEditor::sumsAreCurrent(int localities) const
{
    ContrastData now = m_contrast;
    try {
        analyseContrast(m_table, localities, now);
    } catch (const RunTimeError&) {
        return false; // what cannot be summed now is not what was summed
    }
    for (int side = 1; side <= 2; ++side) {
        for (int j = 1; j <= localities; ++j) {
            if (now.ContrastSum(side, j) != m_contrast.ContrastSum(side, j)) {
                return false;
            }
        }
    }
    return true;
}

QString differingNames(const CumulativeTable& table, const ContrastData& contrast)
{
    QStringList lines;
    for (int side = 1; side <= 2; ++side) {
        for (int t = 1; t <= contrast.ContrastCount(side); ++t) {
            const int k = contrast.ContrastWord(side, t);
            const QString& name = contrast.ContrastWordName(side, t);
            requireOfTable(table, k, name);
            if (name != table.WordformName(k)) {
                lines << QStringLiteral(
                             "Word form %1 is \"%2\" in the file and \"%3\" in the cumulative data.")
                             .arg(QString::number(k), name, table.WordformName(k));
            }
        }
    }
    return lines.join(QLatin1Char('\n'));
}
