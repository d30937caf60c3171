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

const QString Data = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\");
const QString Map = Data + QStringLiteral("Test\\Map\\");
const QString Ling = Data + QStringLiteral("Test\\Ling\\");

/// A kind of file: its loader, and a good one with the count of its records as `@`.
struct LoadedKind
{
    QString path;
    std::function<void(VarnModule&)> load;
    QByteArray good;

    QByteArray withCount(const QByteArray& count) const { return QByteArray(good).replace("@", count); }
};

const std::vector<LoadedKind> FileKinds = {
    {Map + "Loc.map", [](auto& varn) { LoadLocateData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn); },
     "@\r\n1,2\r\n3,4\r\n"},
    {Map + "Line.map", [](auto& varn) { LoadLineData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn); },
     "@\r\n0,1,0,0,0,0\r\n5,6\r\n0,1,0,0,0,0\r\n7,8\r\n"},
    {Map + "kanji.map", [](auto& varn) { LoadKanjiData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn); },
     "@\r\n1,2\r\n\"A\"\r\n3,4\r\n\"B\"\r\n5,6\r\n\"km\",1,10\r\n"},
    {Data + "Square.sbl", [](auto& varn) { LoadSquareData(varn.Drive, varn.VarnPath, varn); },
     "@\r\n1\r\n0,0,0\r\n1,2\r\n1\r\n0,0,0\r\n3,4\r\n"},
    {Data + "ExpSymbol.txt", [](auto& varn) { varn.ExpSymbols = LoadSymbols(varn); },
     "@\r\n\"\\A1\",\"a\",\"A\"\r\n\"\\A2\",\"b\",\"B\"\r\n"},
    {Ling + "rain.dbs", [](auto& varn) { LoadWordData(varn, Ling + "rain.dbs", varn, varn); },
     "@,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n1\r\n\"ami\"\r\n"},
    {Ling + "rain.srt", [](auto& varn) { InputWordData(varn, Ling + "rain.srt", varn); },
     "@\r\n\"ame\",1\r\n\"ami\",1\r\n"},
    {Ling + "rain.han", [](auto& varn) { LoadHankoData(varn.Drive, Ling + "rain.han", varn); },
     "\"set\"\r\n@\r\n\"a\",\"A\"\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n\"b\","
     "\"B\"\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n"},
};

/// A survey whose file of one kind can be exchanged.
struct BadFile
{
    explicit BadFile(const LoadedKind& fileKind) : kind(fileKind)
    {
        survey.write(kind.path, kind.withCount("2"));
        kind.load(survey.varn);
        before = state();
    }

    /// Something of all that the files put into the state.
    QStringList state() const
    {
        const VarnModule& varn = survey.varn;
        return QStringList(varn.ExpSymbols.empty() ? QString() : varn.ExpSymbols[0].name)
               << QString::number(varn.LocXY(1, 0)) << QString::number(varn.LineXY(1, 1, 0))
               << varn.KanjiText(1) << QString::number(varn.SquareXY(1, 1, 0)) << varn.Hanrei
               << varn.WordData(1, 1) << varn.KindWord(1) << varn.Explain << varn.HankoWord(1);
    }

    void expectError(ErrorNumber expected)
    {
        const RunTimeError error = errorOf([this] { kind.load(survey.varn); });
        EXPECT_EQ(error.number(), expected);
        EXPECT_EQ(error.place().path, kind.path);
        EXPECT_EQ(state(), before);
    }

    const LoadedKind& kind;
    TestSurvey survey;
    QStringList before;
};

} // namespace

TEST(BadFiles, EachShapeIsAnErrorThatLeavesTheState)
{
    for (const LoadedKind& kind : FileKinds) {
        BadFile file(kind);
        SCOPED_TRACE(kind.path.toStdString());
        const bool anyCount = kind.path.endsWith("Line.map"); // whose count is not a 16-bit integer
        const std::pair<QByteArray, ErrorNumber> shapes[] = {
            {"", ErrorNumber::InputPastEndOfFile},
            {kind.withCount("3"), ErrorNumber::InputPastEndOfFile},
            {kind.withCount("two"), ErrorNumber::TypeMismatch},
            {kind.withCount("-2"), ErrorNumber::SubscriptOutOfRange},
            {kind.withCount("70000"), anyCount ? ErrorNumber::InputPastEndOfFile : ErrorNumber::Overflow},
            {QByteArray("MZ\0\1", 4), ErrorNumber::TypeMismatch}};
        for (const auto& [text, expected] : shapes) {
            SCOPED_TRACE(text.left(20).toStdString());
            file.survey.write(kind.path, text);
            file.expectError(expected);
        }
        const QString host = file.survey.drive().hostPath(kind.path);
        QFile::remove(host);
        file.expectError(ErrorNumber::FileNotFound);
        QDir().mkdir(host);
        file.expectError(ErrorNumber::PermissionDenied);
    }
}

TEST(BadFiles, AFileCutAnywhereIsLoadedWholeOrNotAtAll)
{
    for (const LoadedKind& kind : FileKinds) {
        BadFile file(kind);
        const QByteArray whole = kind.withCount("2");
        for (qsizetype length = 0; length < whole.size(); ++length) {
            file.survey.write(kind.path, whole.left(length));
            try {
                kind.load(file.survey.varn);
                EXPECT_GE(length, whole.size() - 4) << qPrintable(kind.path);
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.place().path, kind.path);
                EXPECT_EQ(file.state(), file.before) << length << qPrintable(kind.path);
            }
        }
    }
}

TEST(BadFiles, OtherEncodingsAreRead)
{
    TestSurvey survey;
    survey.write(Ling + "rain.dbs", "1,\"\",\"\x89\x4A\",\"\"\r\n1\r\n\"\x83\x41\x83\x81\"\r\n"); // Shift-JIS
    LoadWordData(survey.varn, Ling + "rain.dbs", survey.varn, survey.varn);
    EXPECT_EQ(survey.varn.Hanrei, "雨");
    EXPECT_EQ(survey.read(Ling + "rain.srt"), "1\r\n\"アメ\",1\r\n") << "written as UTF-8";
}
