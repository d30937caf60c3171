#include "platform/forms/QtPrinterDevice.h"
#include "shell/PageSetup.h"
#include "tests/support/TestDrive.h"

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

/// A page with a box from 10 mm to 100 mm from the left and from 10 mm to 20 mm from the top.
PrintedDocument onePage()
{
    DrawSurface page;
    page.FilledBox(567, 567, 5670, 1134, qRgb(0, 0, 0));
    return {QStringLiteral("Island - rain"), PageOrientation::Landscape, {page.drawing()}};
}

QByteArray bytesOf(const QString& file)
{
    QFile pdf(file);
    EXPECT_TRUE(pdf.open(QIODevice::ReadOnly));
    return pdf.readAll();
}

/// The drawing commands of a PDF's first page.
QByteArray firstPage(const QByteArray& pdf)
{
    const qsizetype start = pdf.indexOf("stream\n") + 7;
    const QByteArray sizeForecast("\0\0\x10\0", 4);
    return qUncompress(sizeForecast + pdf.mid(start, pdf.indexOf("endstream", start) - start));
}

/// The `count` numbers before the first `command` of `page`.
QList<double> operands(const QByteArray& page, const char* command, int count)
{
    const QList<QByteArray> words = page.simplified().split(' ');
    const qsizetype end = words.indexOf(command);
    EXPECT_GE(end, count) << command;
    QList<double> numbers(count, 0);
    for (qsizetype i = 0; i < count && end >= count; ++i) {
        numbers[i] = words[end - count + i].toDouble();
    }
    return numbers;
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
    PrintedDocument two = onePage();
    two.pages.push_back(two.pages.front());
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
    const QByteArray across = bytesOf(file);
    EXPECT_TRUE(across.contains("/MediaBox [0 0 842")) << "A4 across";
    EXPECT_TRUE(across.contains(QByteArray("\0I\0s\0l\0a\0n\0d\0 \0-\0 \0r\0a\0i\0n", 26))) << "its title";
    const QByteArray page = firstPage(across);
    const QList<double> matrix = operands(page, "cm", 6);
    const QList<double> box = operands(page, "re", 4);
    const double pointsPerMm = 72 / 25.4;
    const double boxMm[] = {10, 10, 90, 10};
    EXPECT_EQ(matrix.mid(4), (QList<double>{0, 595})) << "from the corner of the paper";
    for (int i = 0; i < 4; ++i) {
        EXPECT_NEAR(box[i] * matrix[0], boxMm[i] * pointsPerMm, 0.05) << i;
    }
}

TEST(PrinterDevice, AFileThatCannotBeWrittenIsAnError)
{
    QtPrinterDevice device(printerTo(QStringLiteral("/no/such/folder/map.pdf")));
    const RunTimeError error = errorOf([&] { device.print(onePage()); });
    EXPECT_EQ(error.number(), ErrorNumber::PathNotFound);
    EXPECT_EQ(error.place().path, QStringLiteral("/no/such/folder/map.pdf"));
}

TEST(PrinterDevice, APrinterThatIsNotThereIsAnError)
{
    auto printer = std::make_unique<QPrinter>();
    printer->setPrinterName(QStringLiteral("no such printer"));
    QtPrinterDevice device(std::move(printer));
    EXPECT_EQ(errorOf([&] { device.print(onePage()); }).number(), ErrorNumber::DeviceIOError);
}

TEST(PrinterDevice, TheOrientationIsThatOfTheDocument)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("map.pdf"));
    QtPrinterDevice device(printerTo(file));
    PrintedDocument upright = onePage();
    upright.orientation = PageOrientation::Portrait;
    device.print(upright);
    EXPECT_TRUE(bytesOf(file).contains("/MediaBox [0 0 595"));
}

TEST(PrinterDevice, WhatIsChangedInThePrinterDialogIsTakenOver)
{
    auto printer = printerTo(QStringLiteral("map.pdf"));
    printer->setPageMargins({30, 12, 14, 16}, QPageLayout::Millimeter);
    PageLayout layout;
    layout.PaperOrientation = PageOrientation::Portrait;
    layout.BottomMargin = 2;
    QtPrinterDevice(std::move(printer), {20, 15, 15, 16}).takeChoices(layout);
    EXPECT_EQ(layout.PaperOrientation, PageOrientation::Landscape);
    EXPECT_EQ(layout.LeftMargin, 30);
    EXPECT_EQ(layout.TopMargin, 12);
    EXPECT_EQ(layout.RightMargin, 14);
    EXPECT_EQ(layout.BottomMargin, 2) << "left as the dialog showed it";
}
