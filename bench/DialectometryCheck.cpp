// What bench/compare_dialectometry.py compares: matrices, trees and places as files that other programs read.
//
//     dialectometry_check distances INSTALLATION MAP MEASURE FILE.csv
//     dialectometry_check forms INSTALLATION MAP
//     dialectometry_check analyse FILE.csv
//
// `distances` writes a matrix and prints the times, `forms` prints the answers with each letter as one
// character, `analyse` prints trees by all methods and the scaling of a matrix, with their times.

#include "dialectometry/DistanceFile.h"
#include "dialectometry/Kilometres.h"
#include "dialectometry/Linkage.h"
#include "dialectometry/Reliability.h"
#include "dialectometry/Scaling.h"
#include "mapdata/MapFiles.h"
#include "mapdata/MapSearch.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <limits>

namespace {

struct NamedMethod
{
    const char* name;
    LinkageMethod method;
};

/// The methods by their names in SciPy.
constexpr std::array Methods = {
    NamedMethod{"single", LinkageMethod::Single}, NamedMethod{"complete", LinkageMethod::Complete},
    NamedMethod{"average", LinkageMethod::Average}, NamedMethod{"weighted", LinkageMethod::Weighted},
    NamedMethod{"ward", LinkageMethod::Ward}};

/// The least milliseconds of processor time, of all threads, of several runs; other work does not count.
template <typename Work>
double bestTime(const Work& work)
{
    constexpr int Runs = 9;
    std::clock_t best = std::numeric_limits<std::clock_t>::max();
    for (int run = 0; run < Runs; ++run) {
        const std::clock_t start = std::clock();
        work();
        best = std::min(best, std::clock() - start);
    }
    return 1000.0 * static_cast<double>(best) / CLOCKS_PER_SEC;
}

bool goOn(int /*done*/, int /*of*/)
{
    return true;
}

void print(const QJsonObject& object)
{
    std::puts(QJsonDocument(object).toJson(QJsonDocument::Compact).constData());
}

/// A map of an installation with all its items.
struct Survey
{
    Survey(const QString& installation, const QString& name)
    {
        Folders folders;
        folders.VarnPath = drive.varnPath(QDir(installation).absolutePath());
        folders.VarnMapName = QLatin1Char('\\') + name;
        loadBaseMap(drive, {folders.VarnPath, folders.VarnMapName}, {}, map);
        loadLocalityNames(folders, map);
        const QDir items(QDir(installation).filePath(QStringLiteral("VarnData/%1/Ling").arg(name)));
        answers.localities = map.NLocality;
        for (const QString& file : items.entryList({QStringLiteral("*.dbs")}, QDir::Files, QDir::Name)) {
            const QString path = drive.varnPath(items.absoluteFilePath(file));
            answers.items.push_back(readComparedItem(drive, path, {}, map.NLocality));
        }
    }

    DriveC drive;
    BaseMap map;
    SurveyAnswers answers;
};

DistanceSettings settingsOf(const QString& measure)
{
    if (measure == QLatin1String("relative-identity")) {
        return {DistanceMeasure::RelativeIdentity};
    }
    if (measure == QLatin1String("weighted-identity")) {
        return {DistanceMeasure::WeightedIdentity};
    }
    return {DistanceMeasure::Levenshtein, measure == QLatin1String("levenshtein-vowels")};
}

QJsonValue valueOf(std::optional<double> number)
{
    return number ? QJsonValue(*number) : QJsonValue();
}

void writeMatrix(const Survey& survey, const QString& measure, const QString& path)
{
    const DistanceSettings settings = settingsOf(measure);
    const SurveyComparison comparison(survey.answers, settings);
    const DistanceMatrix matrix = *comparison.matrix(goOn);
    writeSequentialFile(survey.drive, survey.drive.varnPath(QDir(path).absolutePath()),
                        [&](auto& file) { writeDistances(file, survey.map, matrix); });
    const Lengths lengths = localityLengths(survey.map, survey.map, survey.map);
    std::vector<ItemComparison> items;
    for (const ComparedItem& item : survey.answers.items) {
        items.emplace_back(item, settings);
    }
    print({{"alpha", valueOf(cronbachAlpha(comparison, goOn))},
           {"incoherence", valueOf(localIncoherence(matrix, lengths.lengths))},
           {"correlation", valueOf(lengthCorrelation(matrix, lengths.lengths))},
           {"tables", bestTime([&] { std::ranges::for_each(items, &ItemComparison::table); })},
           {"matrix", bestTime([&] { distances(survey.answers, settings, goOn); })},
           {"alphaTime", bestTime([&] { cronbachAlpha(comparison, goOn); })}});
}

/// Each letter as one character, so that programs that know no marks align the same.
QString oneCharacterALetter(const SpelledForm& form)
{
    constexpr std::uint32_t FirstPrivate = 0xE000;
    constexpr int KindBits = 3;
    QString text;
    for (const std::uint32_t letter : form) {
        text.append(QChar(static_cast<char16_t>(FirstPrivate + (letter >> KindBits))));
    }
    return text;
}

void printForms(const SurveyAnswers& survey)
{
    QJsonArray items;
    for (const ComparedItem& item : survey.items) {
        Speller speller(false);
        QJsonArray forms;
        for (const QString& form : item.forms) {
            forms << oneCharacterALetter(speller.spell(form));
        }
        QJsonArray answers;
        for (const std::vector<int>& numbers : item.answers) {
            QJsonArray row;
            std::ranges::copy(numbers, std::back_inserter(row));
            answers << row;
        }
        items << QJsonObject{{"forms", forms}, {"answers", answers}};
    }
    print({{"localities", survey.localities}, {"items", items}});
}

/// The localities that a file of distances names.
LocalityNames namesOf(SequentialReader file)
{
    LocalityNames names;
    for (file.readString(); file.hasMore();) {
        const QString name = file.readString();
        if (file.line() > 1) {
            break;
        }
        names.localityNames.push_back({name, name, 0, 0});
    }
    return names;
}

QJsonArray rowsOf(const Linkage& tree)
{
    QJsonArray rows;
    for (const Merge& merge : tree.merges) {
        rows << QJsonArray{merge.first, merge.second, merge.height, merge.size};
    }
    return rows;
}

void analyse(const QString& path)
{
    const DriveC drive;
    const QString file = drive.varnPath(QDir(path).absolutePath());
    const LocalityNames names = namesOf(SequentialReader(readTextFile(drive, file)));
    const auto count = static_cast<int>(names.localityNames.size());
    const DistanceMatrix matrix = readSequentialFile(
        drive, file, [&](SequentialReader& reader) { return readDistances(reader, names, count); });
    QJsonObject trees;
    for (const NamedMethod& named : Methods) {
        const Linkage tree = linkage(matrix, named.method);
        trees[QLatin1String(named.name)] =
            QJsonObject{{"rows", rowsOf(tree)},
                        {"leftOut", count - static_cast<int>(tree.localities.size())},
                        {"time", bestTime([&] { linkage(matrix, named.method); })}};
    }
    const Scaling scaling = classicalScaling(matrix);
    QJsonArray places;
    for (const std::vector<double>& place : scaling.places) {
        QJsonArray row;
        std::ranges::copy(place, std::back_inserter(row));
        places << row;
    }
    print({{"trees", trees},
           {"places", places},
           {"variance", QJsonArray{scaling.variance[0], scaling.variance[1], scaling.variance[2]}},
           {"stress", QJsonArray{scaling.stress[0], scaling.stress[1], scaling.stress[2]}},
           {"time", bestTime([&] { classicalScaling(matrix); })}});
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    try {
        if (arguments.size() == 5 && arguments[0] == QLatin1String("distances")) {
            writeMatrix(Survey(arguments[1], arguments[2]), arguments[3], arguments[4]);
        } else if (arguments.size() == 3 && arguments[0] == QLatin1String("forms")) {
            printForms(Survey(arguments[1], arguments[2]).answers);
        } else if (arguments.size() == 2 && arguments[0] == QLatin1String("analyse")) {
            analyse(arguments[1]);
        } else {
            std::fputs("usage: dialectometry_check distances INSTALLATION MAP MEASURE FILE.csv\n"
                       "       dialectometry_check forms INSTALLATION MAP\n"
                       "       dialectometry_check analyse FILE.csv\n",
                       stderr);
            return 2;
        }
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(error.message()));
        return 1;
    }
    return 0;
}
