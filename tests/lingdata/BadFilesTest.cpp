// Every kind of file in every bad shape ends its loading with the run-time's error, and the state stays as it
// was.

#include "lingdata/ItemLoader.h"
#include "lingdata/KindList.h"
#include "mapdata/MapFiles.h"
#include "render/PhoneticText.h"
#include "symbols/SymbolFile.h"
#include "tests/support/TestDrive.h"

#include <QDir>
#include <QFile>

#include <functional>

namespace {

/// A kind of file: a good one with the count of its records as `@`, its loader, and the texts that it puts
/// into the state.
struct LoadedKind
{
    QString path;
    QByteArray good;
    std::function<void(VarnModule&)> load;
    std::function<QString(const VarnModule&)> state;
};

const QString Data = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\");
const QString Item = Data + QStringLiteral("Test\\Ling\\rain.dbs");
const QString Symbols = Data + QStringLiteral("Test\\Ling\\rain.han");
const QString Kinds = Data + QStringLiteral("Test\\Ling\\rain.srt");

std::vector<LoadedKind> fileKinds()
{
    const QString map = Data + QStringLiteral("Test\\Map\\");
    return {
        {map + QStringLiteral("Loc.map"), "@\r\n1,2\r\n3,4\r\n",
         [](VarnModule& varn) { LoadLocateData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn); },
         [](const VarnModule& varn) { return QString::number(varn.LocXY(1, 0)); }},
        {map + QStringLiteral("Line.map"), "@\r\n0,1,0,0,0,0\r\n5,6\r\n0,1,0,0,0,0\r\n7,8\r\n",
         [](VarnModule& varn) { LoadLineData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn); },
         [](const VarnModule& varn) { return QString::number(varn.LineXY(1, 1, 0)); }},
        {map + QStringLiteral("kanji.map"), "@\r\n1,2\r\n\"A\"\r\n3,4\r\n\"B\"\r\n5,6\r\n\"km\",1,10\r\n",
         [](VarnModule& varn) { LoadKanjiData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn); },
         [](const VarnModule& varn) { return varn.KanjiText(1); }},
        {Data + QStringLiteral("Square.sbl"), "@\r\n1\r\n0,0,0\r\n1,2\r\n1\r\n0,0,0\r\n3,4\r\n",
         [](VarnModule& varn) { LoadSquareData(varn.Drive, varn.VarnPath, varn); },
         [](const VarnModule& varn) { return QString::number(varn.SquareXY(1, 1, 0)); }},
        {Data + QStringLiteral("ExpSymbol.txt"), "@\r\n\"\\A1\",\"a\",\"A\"\r\n\"\\A2\",\"b\",\"B\"\r\n",
         [](VarnModule& varn) { varn.ExpSymbols = LoadSymbols(varn); },
         [](const VarnModule& varn) {
             return varn.ExpSymbols.empty() ? QString() : varn.ExpSymbols[0].name;
         }},
        {Item, "@,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n1\r\n\"ami\"\r\n",
         [](VarnModule& varn) { LoadWordData(varn, Item, varn, varn); },
         [](const VarnModule& varn) { return varn.Hanrei + varn.WordData(1, 1); }},
        {Kinds, "@\r\n\"ame\",1\r\n\"ami\",1\r\n", [](VarnModule& varn) { InputWordData(varn, Kinds, varn); },
         [](const VarnModule& varn) { return varn.KindWord(1); }},
        {Symbols,
         "\"set\"\r\n@\r\n\"a\",\"A\"\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n\"b\","
         "\"B\"\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n",
         [](VarnModule& varn) { LoadHankoData(varn.Drive, Symbols, varn); },
         [](const VarnModule& varn) { return varn.Explain + varn.HankoWord(1); }},
    };
}

QByteArray withCount(const LoadedKind& kind, const QByteArray& count)
{
    QByteArray text = kind.good;
    return text.replace("@", count);
}

/// A survey whose file of one kind can be exchanged, the item's kinds file out of the way.
struct BadFile
{
    explicit BadFile(LoadedKind fileKind) : kind(std::move(fileKind))
    {
        survey.write(kind.path, withCount(kind, "2"));
        kind.load(survey.varn);
        before = kind.state(survey.varn);
    }

    void expectError(const char* shape, ErrorNumber expected)
    {
        const RunTimeError error = errorOf([this] { kind.load(survey.varn); });
        EXPECT_EQ(error.number(), expected) << shape << ' ' << qPrintable(kind.path);
        EXPECT_EQ(error.place().path, kind.path) << shape;
        EXPECT_EQ(kind.state(survey.varn), before) << shape << ' ' << qPrintable(kind.path);
    }

    LoadedKind kind;
    TestSurvey survey;
    QString before;
};

} // namespace

TEST(BadFiles, EachShapeIsAnErrorThatLeavesTheState)
{
    struct Shape
    {
        const char* name;
        std::function<QByteArray(const LoadedKind&)> text;
        ErrorNumber expected;
    };
    const Shape shapes[] = {
        {"empty", [](const LoadedKind&) { return QByteArray(); }, ErrorNumber::InputPastEndOfFile},
        {"one record short", [](const LoadedKind& kind) { return withCount(kind, "3"); },
         ErrorNumber::InputPastEndOfFile},
        {"a word for the count", [](const LoadedKind& kind) { return withCount(kind, "two"); },
         ErrorNumber::TypeMismatch},
        {"a negative count", [](const LoadedKind& kind) { return withCount(kind, "-2"); },
         ErrorNumber::SubscriptOutOfRange},
        {"not text",
         [](const LoadedKind&) {
             return QByteArray("\x7f"
                               "ELF\0\1\2",
                               7);
         },
         ErrorNumber::TypeMismatch},
    };
    for (const LoadedKind& kind : fileKinds()) {
        BadFile file(kind);
        for (const Shape& shape : shapes) {
            file.survey.write(kind.path, shape.text(kind));
            file.expectError(shape.name, shape.expected);
        }
        if (!kind.path.endsWith(QStringLiteral("Line.map"))) { // whose count is not a 16-bit integer
            file.survey.write(kind.path, withCount(kind, "70000"));
            file.expectError("a count beyond 16 bits", ErrorNumber::Overflow);
        }
        const QString host = file.survey.drive().hostPath(kind.path);
        QFile::remove(host);
        file.expectError("missing", ErrorNumber::FileNotFound);
        QDir().mkdir(host);
        file.expectError("a folder", ErrorNumber::PermissionDenied);
    }
}

TEST(BadFiles, AFileCutAnywhereIsLoadedWholeOrNotAtAll)
{
    for (const LoadedKind& kind : fileKinds()) {
        BadFile file(kind);
        const QByteArray whole = withCount(kind, "2");
        for (qsizetype length = 0; length < whole.size(); ++length) {
            file.survey.write(kind.path, whole.left(length));
            try {
                kind.load(file.survey.varn);
                EXPECT_GE(length, whole.size() - 4) << qPrintable(kind.path);
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.place().path, kind.path);
                EXPECT_EQ(kind.state(file.survey.varn), file.before) << length << qPrintable(kind.path);
            }
        }
    }
}

TEST(BadFiles, OtherEncodingsAreRead)
{
    TestSurvey survey;
    survey.write(Item, "1,\"\",\"\x89\x4A\",\"\"\r\n1\r\n\"\x83\x41\x83\x81\"\r\n"); // Shift-JIS
    LoadWordData(survey.varn, Item, survey.varn, survey.varn);
    EXPECT_EQ(survey.varn.Hanrei, QString::fromUtf8("\xE9\x9B\xA8"));
    EXPECT_EQ(survey.read(Kinds), "1\r\n\"\xE3\x82\xA2\xE3\x83\xA1\",1\r\n") << "written as UTF-8";
    survey.write(Symbols,
                 "\"\"\r\n1\r\n\"\xE9\",\"r\xE9tro\"\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n"); // Windows-1252
    LoadHankoData(survey.drive(), Symbols, survey.varn);
    EXPECT_EQ(survey.varn.HankoCaption(1), QString::fromUtf8("r\xC3\xA9tro"));
}
