#include "exchange/Credits.h"

#include "tests/support/TestDrive.h"

#include <QFile>
#include <QRegularExpression>

TEST(Credits, NameWhatRunsWithItsVersionAndLicence)
{
    const QRegularExpression version(QStringLiteral("^\\d+\\.\\d+"));
    QStringList names;
    const QString text = creditsText();
    for (const Credit& credit : credits()) {
        names << credit.name;
        const bool tellsNone =
            credit.name.startsWith("Natural Earth") || credit.name == "qpdf" || credit.name == "libpng";
        EXPECT_EQ(version.match(credit.version).hasMatch(), !tellsNone) << qPrintable(credit.name);
        EXPECT_FALSE(credit.licence.isEmpty()) << qPrintable(credit.name);
        EXPECT_TRUE(text.contains(credit.name) && text.contains(credit.licence)) << qPrintable(credit.name);
    }
    for (const char* name : {"Qt", "GDAL", "PROJ", "Charis SIL"}) {
        EXPECT_TRUE(names.contains(name)) << name;
    }
    EXPECT_TRUE(version.match(programVersion()).hasMatch());
    EXPECT_TRUE(text.contains(programVersion()));
}

TEST(Credits, StandInTheNoticeToo)
{
    QFile file(QStringLiteral(INSTALLATION_FOLDER "/../NOTICE"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString notice = QString::fromUtf8(file.readAll()).simplified();
    for (const Credit& credit : credits()) {
        for (const QString& text : {credit.name, credit.use, credit.licence}) {
            const QString said = text.section(';', 0, 0);
            EXPECT_TRUE(notice.contains(said, Qt::CaseInsensitive)) << said.toStdString();
        }
    }
}
