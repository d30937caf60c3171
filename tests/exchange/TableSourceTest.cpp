#include "exchange/TableSource.h"

#include "exchange/Degrees.h"
#include "exchange/SourceTable.h"
#include "exchange/TableColumns.h"
#include "platform/WholeFile.h"
#include "tests/exchange/SurveyText.h"
#include "tests/support/TestDrive.h"

#include <QStringEncoder>

#include <ogrsf_frmts.h>

namespace {

/// Two places and two items, however a table writes them.
const QString Places = QStringLiteral("1 Aa 10.5 -2.25\n2 Bö 11 3.5\nrain: ame+uyu|yuki\nsnow: |mĩ");

class Tables : public testing::Test
{
protected:
    QString put(const char* name, const QByteArray& bytes)
    {
        replaceHostFile(files.hostPath(QLatin1String(name)), QLatin1String(name), bytes);
        return files.hostPath(QLatin1String(name));
    }
    SourceSurvey read(const QString& path, const char* localities = "")
    {
        SourceChoices choices;
        choices.path = path;
        if (*localities != '\0') {
            choices.localities = files.hostPath(QLatin1String(localities));
        }
        return readTableSource(choices);
    }

    TestDrive files;
};

} // namespace

TEST_F(Tables, EveryWayOfWritingATableIsTheSameSurvey)
{
    const std::pair<const char*, const char*> texts[] = {
        {"comma.csv",
         "id,name,longitude,latitude,rain,snow\n1,Aa,10.5,-2.25,\"ame; uyu\",\n2,Bö,11,3.5,yuki,mĩ\n"},
        {"german.csv",
         "Nr;Ortsname;Länge;Breite;rain;snow\r\n1;Aa;10,5;-2,25;ame | uyu;\r\n2;Bö;11;3,5;yuki;mĩ\r\n"},
        {"tab.txt", "# a comment, with one \" in it\nid\tname\tlat\tlon\train\tsnow\n"
                    "1\tAa\t2°15′S\t10°30'0\"E\tame / uyu\t\n\n2\tBö\t3 30 N\t11 E\tyuki\tmĩ\n"},
        {"title.csv", "The rain survey,,,,,\n,,,,,\n番号,地点名,経度,緯度,rain,snow\n"
                      "1,Aa,10.5,-2.25,\"ame\nuyu\",\n2,Bö,11,3.5,yuki,mĩ\n"},
        {"long.tsv", "nr\tlieu\tlongitude\tlatitude\tquestion\tréponse\n1\tAa\t10.5\t-2.25\train\tame\n"
                     "1\tAa\t10.5\t-2.25\train\tuyu\n2\tBö\t11\t3.5\tsnow\tmĩ\n2\tBö\t11\t3.5\train\tyuki\n"},
    };
    for (const auto& [name, text] : texts) {
        EXPECT_EQ(textOf(read(put(name, text))), Places) << name;
    }
    QStringEncoder utf16("UTF-16LE", QStringConverter::Flag::WriteBom);
    EXPECT_EQ(textOf(read(put("wide.u16", utf16(QString::fromUtf8(texts[0].second))))), Places);
}

TEST_F(Tables, ASpreadsheetWithATitleAboveItsHeadings)
{
    GDALAllRegister();
    for (const auto& [driver, name] : {std::pair("XLSX", "a.xlsx"), std::pair("ODS", "a.ods")}) {
        const QByteArray path = files.hostPath(QLatin1String(name)).toUtf8();
        GDALDataset* book = GetGDALDriverManager()->GetDriverByName(driver)->Create(path.constData(), 0, 0, 0,
                                                                                    GDT_Unknown, nullptr);
        OGRLayer* sheet = book->CreateLayer("s");
        for (const char* title : {"Survey of rain", " ", "  ", "   ", "    ", "     "}) { // the first row
            OGRFieldDefn field(title, OFTString);
            sheet->CreateField(&field);
        }
        const QStringList rows[] = {QStringLiteral("id,name,lon,lat,rain,snow").split(QLatin1Char(',')),
                                    QStringLiteral("1,Aa,10.5,-2.25,ame; uyu,").split(QLatin1Char(',')),
                                    QStringLiteral("2,Bö,11,3.5,yuki,mĩ").split(QLatin1Char(','))};
        for (const QStringList& row : rows) {
            OGRFeature feature(sheet->GetLayerDefn());
            for (int column = 0; column < row.size(); ++column) {
                feature.SetField(column, row[column].toUtf8().constData());
            }
            ASSERT_EQ(sheet->CreateFeature(&feature), OGRERR_NONE);
        }
        GDALClose(book);
        EXPECT_EQ(textOf(read(QString::fromUtf8(path))), Places) << name;
    }
}

TEST_F(Tables, LocalitiesAreFoundInAFileOfTheirOwn)
{
    put("else.csv", "name;length\nAa;3\n");
    put("places.csv", "Ort;Länge;Breite\nBÖ ;11;3,5\nAa;10,5;-2,25\nCc;0;0\n");
    const QString wide = put("wide.tsv", "\train\tsnow\nAa\tame|uyu\t\nBö\tyuki\tmĩ\nAx\tnone\tnone\n");
    for (const char* localities : {"", "places.csv"}) {
        const SourceSurvey survey = read(wide, localities);
        EXPECT_EQ(textOf(survey),
                  QStringLiteral("Aa Aa 10.5 -2.25\nBÖ BÖ 11 3.5\nrain: ame+uyu|yuki\nsnow: |mĩ"));
        EXPECT_TRUE(survey.report.text().contains(QStringLiteral("Ax, nearest is Aa")))
            << survey.report.text().toStdString();
    }
}

TEST_F(Tables, WhatIsNotSoundIsNamedWithItsPlace)
{
    struct Row
    {
        const char* text;
        int line;
        int field;
        const char* says;
    };
    const Row rows[] = {
        {"name,lon,lat,rain\nAa,1,2,x\nBb,145,-5O,y\n", 3, 3, "5°11"},
        {"name,lat,lon,rain\nAa,145,2,x\n", 2, 2, "swapped"},
        {"name,lon,lat\nAa,1,2\n", 1, 0, "no column of answers"},
        {"name,rain\nAa,x\n", 1, 0, "Name the file with the localities"},
        {"name,lon,lat,rain\nAa,,,x\n", 1, 0, "Left out, localities without coordinates: 1 (Aa)"},
        {"name\n", 0, 0, "no rows"},
        {"MZ\1\2", 0, 0, "no rows"},
    };
    for (const Row& row : rows) {
        const QString path = put("bad.csv", row.text);
        const RunTimeError error = errorOf([&] { read(path); });
        EXPECT_EQ(error.place().path, path) << row.text;
        EXPECT_EQ(error.place().line, row.line) << row.text;
        EXPECT_EQ(error.place().field, row.field) << row.text;
        EXPECT_TRUE(error.detail().contains(QString::fromUtf8(row.says))) << error.what();
    }
    EXPECT_EQ(errorOf([&] { read(QStringLiteral("/nowhere/a.csv")); }).number(), ErrorNumber::FileNotFound);
}

TEST_F(Tables, DoubledNamesAndHeadingsAreToldApartOrTold)
{
    const SourceSurvey wide =
        read(put("a.csv", "name,lon,lat,rain,rain,other\nAa,1,2,x,y,\nAa,1,2,z,,\n,1,2,q,,\nBb,,,q,,\n"));
    EXPECT_EQ(textOf(wide), QStringLiteral("Aa Aa 1 2\nrain: x+z\nrain (2): y\nother: "));
    EXPECT_EQ(wide.report.text(), QStringLiteral("Row 3: Aa stands there again; its answers are added.\n"
                                                 "Left out, rows that name no locality: 1 (row 4)\n"
                                                 "Left out, localities without coordinates: 1 (Bb)"));
    put("b.csv", "name,lon,lat\nAa,1,2\nAa,3,4\n");
    const RunTimeError error = errorOf([&] { read(put("c.csv", "name,rain\nAa,x\n"), "b.csv"); });
    EXPECT_EQ(error.place().line, 2);
    EXPECT_TRUE(error.detail().contains(QStringLiteral("Several localities are called \"Aa\"")));
}

TEST(Degrees, AreReadAsTheyAreWritten)
{
    const std::pair<const char*, double> rows[] = {
        {"-5.25", -5.25},    {"5,25", 5.25},    {"−5,25", -5.25}, {"5°15′S", -5.25},
        {"5°15'0\"N", 5.25}, {"5 15 W", -5.25}, {"E 5.25", 5.25}, {"東経5度15分", 5.25},
        {"5°14′60″", NAN},   {"5O", NAN},       {"", NAN},        {"5°75′", NAN}};
    for (const auto& [text, value] : rows) {
        const std::optional<double> read = degrees(QString::fromUtf8(text));
        EXPECT_EQ(read.has_value(), !std::isnan(value)) << text;
        EXPECT_DOUBLE_EQ(read.value_or(0), std::isnan(value) ? 0 : value) << text;
    }
}
