#include "tests/support/TestDrive.h"

#include "mapdata/MapFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>

#include <stdexcept>

TestDrive::TestDrive() : m_drive(m_folder.path())
{
    if (!m_folder.isValid()) {
        throw std::runtime_error("no folder for a drive C: " + m_folder.errorString().toStdString());
    }
}

void TestDrive::write(const QString& path, const QByteArray& text) const
{
    const QString host = m_drive.hostPath(path);
    QDir().mkpath(QFileInfo(host).path());
    QFile file(host);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(host);
    ASSERT_EQ(file.write(text), text.size()) << qPrintable(host);
    ASSERT_TRUE(file.flush()) << qPrintable(host);
}

QByteArray TestDrive::read(const QString& path) const
{
    QFile file(m_drive.hostPath(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

TestSurvey::TestSurvey()
{
    const QString data = "C:\\Varn62E\\Varn\\VarnData";
    write(data + "\\Square.sbl", "2\r\n5\r\n16,16,0\r\n6,6\r\n26,6\r\n26,26\r\n6,26\r\n6,6\r\n"
                                 "2\r\n0,0,0\r\n-10,-5\r\n10,5\r\n");
    write(data + "\\Test\\Map\\Line.map",
          "1\r\n0,5,1,0,0,0\r\n0,0\r\n1000,0\r\n1000,1000\r\n0,1000\r\n0,0\r\n");
    write(data + "\\Test\\Map\\Loc.map", "3\r\n100,200\r\n300,400\r\n500.5,600.5\r\n");
    write(data + "\\Test\\Map\\kanji.map",
          "2\r\n20,30.5\r\n\"Title\"\r\n400,500\r\n\"Town\"\r\n100,900\r\n\"20 km\",4,200\r\n");

    varn.Drive = drive();
    varn.VarnMapName = "\\Test";
    varn.LingFolder = "\\VarnData\\Test\\Ling";
    QDir().mkpath(drive().hostPath(varn.dataFolder()));
    LoadSquareData(varn.Drive, varn.VarnPath, varn);
    LoadLineData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn);
    LoadLocateData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn);
    LoadKanjiData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn);
}

bool anyFont()
{
    return !QFontDatabase::families().isEmpty();
}

std::ostream& operator<<(std::ostream& out, ErrorNumber number)
{
    return out << "error " << static_cast<int>(number);
}

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << qPrintable(text) << '"';
}

bool wasPrinted(const Drawing& drawing, const QString& text)
{
    return std::find(drawing.texts.begin(), drawing.texts.end(), text) != drawing.texts.end();
}

QPointF printedAt(const Drawing& drawing, const QString& text)
{
    for (const TextOperation& operation : operationsOf<TextOperation>(drawing)) {
        if (drawing.texts[operation.text] == text) {
            return {operation.x, operation.y};
        }
    }
    ADD_FAILURE() << '"' << qPrintable(text) << "\" was not printed";
    return {};
}
