#include "exchange/CldfSource.h"

#include "exchange/LayerFiles.h"
#include "exchange/ReadSource.h"
#include "tests/exchange/SurveyText.h"
#include "tests/support/TestDrive.h"

#include <QRegularExpression>

#include <cpl_vsi.h>
#include <map>

namespace {

/// A table of the metadata: "FormTable forms.csv A=id B=form C"; columns without a term have only a name.
QByteArray tableJson(const QString& line)
{
    const QString terms = QStringLiteral("http://cldf.clld.org/v1.0/terms.rdf#");
    const QStringList words = line.split(QLatin1Char(' '));
    QStringList columns;
    for (const QString& word : words.mid(2)) {
        const QString term = word.section(QLatin1Char('='), 1);
        columns << QStringLiteral(R"({"name": "%1", "separator": %2%3})")
                       .arg(word.section(QLatin1Char('='), 0, 0),
                            term.endsWith(QLatin1String("setReference")) ? QStringLiteral("\",\"")
                                                                         : QStringLiteral("null"),
                            term.isEmpty() ? QString()
                                           : QStringLiteral(R"(, "propertyUrl": "%1%2")").arg(terms, term));
    }
    return QStringLiteral(R"({"url": "%2", "dc:conformsTo": "%3%1", "tableSchema": {"columns": [%4]}})")
        .arg(words[0], words[1], terms, columns.join(QLatin1Char(',')))
        .toUtf8();
}

/// A data set, whose columns are not called what they mean.
using Files = std::map<QByteArray, QByteArray>;

QByteArray metadata(const char* module, const QStringList& tables)
{
    QByteArrayList json;
    for (const QString& table : tables) {
        json << tableJson(table);
    }
    return QByteArray(R"({"dc:conformsTo": "http://cldf.clld.org/v1.0/terms.rdf#)") + module +
           R"(", "dc:title": "Rain", "tables": [)" + json.join(',') + "]}";
}

const QString Languages = QStringLiteral("LanguageTable l.csv L=id N=name Y=latitude X=longitude");
const QString Parameters = QStringLiteral("ParameterTable p.csv P=id N=name");
const QString Forms =
    QStringLiteral("FormTable f.tsv F=id note P=parameterReference L=languageReference W=form");
const QString Cognates = QStringLiteral("CognateTable c.csv C=id F=formReference S=cognatesetReference");

Files wordlist()
{
    return {{"Wordlist-metadata.json", metadata("Wordlist", {Languages, Parameters, Forms, Cognates})},
            {"l.csv", "L,N,Y,X\nb,Bö,3.5,11\nn,Nowhere,,\na,,-2.25,10.5\n"},
            {"p.csv", "P,N\np1,rain\np2,\"snow, \"\"ice\"\"\"\n"},
            {"f.tsv",
             "F\tnote\tL\tP\tW\n1\t\ta\tp1\tame\n2\tx\tb\tp1\tyuki\n3\t\ta\tp1\tuyu\n4\t\tb\tp2\tmĩ\n"
             "5\t\tn\tp1\tame\n6\t\tzz\tp1\tame\n7\t\ta\tp9\tame\n8\t\ta\tp2\t\n9\t\ta\tp1\tame\n"},
            {"c.csv", "C,F,S\n1,1,\"w,y\"\n2,2,w\n3,3,y\n4,9,z\n"}};
}

class Cldf : public testing::Test
{
protected:
    /// Writes a data set into a folder or a zip under the drive; returns its path.
    QString put(const QString& name, const Files& data)
    {
        QString path = files.hostPath(name);
        const QByteArray folder =
            name.endsWith(QLatin1String(".zip")) ? "/vsizip/" + path.toUtf8() + "/data" : path.toUtf8();
        VSIMkdirRecursive(folder.constData(), 0755);
        for (const auto& [file, bytes] : data) {
            VSILFILE* out = VSIFOpenL((folder + '/' + file).constData(), "wb");
            const auto size = static_cast<std::size_t>(bytes.size());
            EXPECT_EQ(VSIFWriteL(bytes.constData(), 1, size, out), size);
            VSIFCloseL(out);
        }
        return path;
    }
    SourceSurvey read(const QString& path, WordSource words = WordSource::Forms)
    {
        SourceChoices choices;
        choices.path = path;
        choices.words = words;
        return readSource(choices);
    }

    TestDrive files;
};

const QString Places = QStringLiteral("b Bö 11 3.5\na a 10.5 -2.25\n");

} // namespace

TEST_F(Cldf, AWordlistIsReadByItsTermsFromFolderMetadataAndZip)
{
    const QString folder = put(QStringLiteral("rain"), wordlist());
    for (const QString& path :
         {folder, folder + QStringLiteral("/Wordlist-metadata.json"),
          put(QStringLiteral("whole/cldf"), wordlist()).section(QLatin1Char('/'), 0, -2),
          put(QStringLiteral("rain.zip"), wordlist())}) {
        EXPECT_TRUE(isCldf(path)) << qPrintable(path);
        EXPECT_FALSE(isLayer(path)) << qPrintable(path);
        const SourceSurvey survey = read(path);
        EXPECT_EQ(survey.title, QStringLiteral("Rain"));
        EXPECT_FALSE(survey.categorical);
        EXPECT_EQ(textOf(survey), Places + QStringLiteral("rain: yuki|ame+uyu\nsnow, \"ice\": mĩ|"));
        EXPECT_EQ(survey.report.text().section(QLatin1Char('\n'), 1),
                  QStringLiteral("Left out, localities without coordinates: 1 (Nowhere)\n"
                                 "Left out, answers of localities without coordinates: 1 (rain in n)\n"
                                 "Left out, answers of unknown localities: 1 (rain in zz)\n"
                                 "Left out, answers to unknown items: 1 (p9 in a)\n"
                                 "Left out, answers without a word form: 1 (snow, \"ice\" in a)"));
    }
}

TEST_F(Cldf, CognateSetsStandInATableOfTheirOwnOrWithTheForms)
{
    Files data = wordlist();
    const QString expected = Places + QStringLiteral("rain: w|w+y+z\nsnow, \"ice\": |");
    const SourceSurvey inTable = read(put(QStringLiteral("table"), data), WordSource::Cognates);
    EXPECT_EQ(textOf(inTable), expected);
    EXPECT_TRUE(inTable.categorical);

    data["Wordlist-metadata.json"] =
        metadata("Wordlist", {Languages, Forms + QStringLiteral(" S=cognatesetReference")});
    data["f.tsv"] = "F\tnote\tL\tP\tW\tS\n1\t\ta\train\tame\tw,y\n2\t\tb\train\tyuki\tw\n";
    EXPECT_EQ(textOf(read(put(QStringLiteral("forms"), data), WordSource::Cognates)),
              Places + QStringLiteral("rain: w|w+y"));
}

TEST_F(Cldf, AStructureDatasetHasItsCodesByName)
{
    const QString values = QStringLiteral(
        "ValueTable v.csv V=id L=languageReference P=parameterReference C=codeReference W=value");
    const SourceSurvey survey =
        read(put(QStringLiteral("codes"),
                 {{"cldf-metadata.json",
                   metadata("StructureDataset",
                            {Languages, values, Parameters, QStringLiteral("CodeTable c.csv C=id N=name")})},
                  {"l.csv", wordlist()["l.csv"]},
                  {"p.csv", wordlist()["p.csv"]},
                  {"c.csv", "C,N\np1-1,SOV\np1-2,SVO\n"},
                  {"v.csv", "V,L,P,C,W\n1,a,p1,p1-1,1\n2,b,p1,p1-2,2\n3,a,p2,,much\n"}}));
    EXPECT_EQ(textOf(survey), Places + QStringLiteral("rain: SVO|SOV\nsnow, \"ice\": |much"));
    EXPECT_TRUE(survey.categorical);
}

TEST_F(Cldf, WhatIsNotSoundIsNamed)
{
    struct Row
    {
        const char* file;
        QByteArray bytes;
        const char* said;
    };
    const char* json = "Wordlist-metadata.json";
    const Row rows[] = {
        {json, metadata("Wordlist", {Parameters, Forms}), "The data set has no LanguageTable"},
        {json,
         metadata("Wordlist", {Languages, QStringLiteral("FormTable f.tsv L=languageReference W=form")}),
         "f\\.tsv\\n.*No column of the FormTable means \"parameterReference\""},
        {json, metadata("Wordlist", {Languages, Forms + QStringLiteral("2")}),
         "f\\.tsv.*no column \"W\"|form"},
        {"l.csv", "L,N,Y,X\nb,,3.5,11\na,,145.2,-5.1\n",
         "l\\.csv(.|\\n)*Line 3(.|\\n)*\"Y\": \"145.2\" is no latitude"},
        {"l.csv", "L,N,Y\nb,,3.5\n", "l\\.csv(.|\\n)*no column \"X\".*There are: L, N, Y"},
        {"l.csv", "L,N,Y,X\nb,,1,1\nb,,2,2\n", "l\\.csv(.|\\n)*Line 3(.|\\n)*\"b\" stands there twice"},
        {"l.csv", "L,N,Y,X\nb,,,\n", "No locality has coordinates"},
        {"p.csv", "", "p\\.csv\\nIt is empty"},
        {"p.csv",
         "P,N\np1,rain\np2,gr\xf6\xdf"
         "e\n",
         "p\\.csv\\nLine 3\\nIt is not UTF-8"},
        {"p.csv", "P,N\np1,5\" nail\np2,x\n", "p\\.csv\\nA quotation mark is not closed"},
        {json, wordlist()[json].replace("f.tsv", "g.tsv"),
         "File not found(.|\\n)*g\\.tsv(.|\\n)*as the FormTable"},
        {json, "{\"dc:conformsTo\":\n \"http", "metadata\\.json\\nLine 2\\nIt is no sound JSON"},
    };
    int number = 0;
    for (const Row& row : rows) {
        Files data = wordlist();
        data[row.file] = row.bytes;
        const QString path = put(QStringLiteral("bad%1").arg(++number), data);
        const QString message = errorOf([&] { read(path); }).message();
        EXPECT_TRUE(message.contains(QRegularExpression(QLatin1String(row.said)))) << row.said << '\n'
                                                                                   << qPrintable(message);
    }
    files.write(QStringLiteral("C:\\broken.zip"), "PK no zip");
    const QString broken = files.hostPath(QStringLiteral("broken.zip"));
    EXPECT_FALSE(isLayer(broken));
    EXPECT_TRUE(errorOf([&] { read(broken); }).message().contains(QStringLiteral("broken")));
    const QString words = put(QStringLiteral("words"), wordlist());
    EXPECT_TRUE(
        errorOf([&] { read(words, WordSource::Codes); }).message().contains(QStringLiteral("ValueTable")));
}
