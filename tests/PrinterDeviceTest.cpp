#include "platform/QtPrinterDevice.h"
#include "shell/PageSetup.h"
#include "tests/TestDrive.h"

#include <QFileInfo>
#include <QPrinter>
#include <QTemporaryDir>

namespace {

std::unique_ptr<QPrinter> printerTo(const QString& file)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFileName(file);
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setPageOrientation(QPageLayout::Landscape);
    return printer;
}

std::vector<Drawing> onePage()
{
    DrawSurface page;
    page.Box(567, 567, 5670, 1134, qRgb(0, 0, 0));
    return {page.drawing()};
}

} // namespace

TEST(PrinterDevice, ASecondDocumentHasAFileOfItsOwn)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("map.v1.pdf"));
    QFile taken(folder.filePath(QStringLiteral("map.v1-2.pdf")));
    ASSERT_TRUE(taken.open(QIODevice::WriteOnly));
    taken.write("mine");
    taken.close();

    QtPrinterDevice device(printerTo(file));
    device.print(onePage());
    const auto firstSize = QFileInfo(file).size();
    EXPECT_GT(firstSize, 500);
    std::vector<Drawing> two = onePage();
    two.push_back(two.front());
    device.print(two);
    EXPECT_EQ(QFileInfo(file).size(), firstSize);
    EXPECT_EQ(QFileInfo(taken.fileName()).size(), 4) << "a file that was there is left alone";
    EXPECT_TRUE(QFileInfo::exists(folder.filePath(QStringLiteral("map.v1-3.pdf"))));
}

TEST(PrinterDevice, PaperIsAddressedFromItsCorner)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("map.pdf"));
    QtPrinterDevice(printerTo(file)).print(onePage());
    QFile pdf(file);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    const QByteArray bytes = pdf.readAll();
    EXPECT_TRUE(bytes.contains("/MediaBox [0 0 842")) << "A4 across";
}

TEST(PrinterDevice, AFileThatCannotBeWrittenIsAnError)
{
    QtPrinterDevice device(printerTo(QStringLiteral("/no/such/folder/map.pdf")));
    EXPECT_EQ(errorOf([&] { device.print(onePage()); }).number(), ErrorNumber::DeviceIOError);
}
