#include "platform/forms/QtPrinterDevice.h"
#include "tests/support/TestDrive.h"

#include <QFile>
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

} // namespace

TEST(PrinterDevice, EveryDocumentHasAFileOfItsOwn)
{
    const QTemporaryDir folder;
    const auto file = [&folder](const char* name) { return folder.filePath(QLatin1String(name)); };
    QFile taken(file("map.v1-2.pdf"));
    ASSERT_TRUE(taken.open(QIODevice::WriteOnly) && taken.write("mine") == 4);
    taken.close();
    QtPrinterDevice device(printerTo(file("map.v1.pdf")));
    device.print(onePage());
    const QByteArray first = bytesOf(file("map.v1.pdf"));
    EXPECT_TRUE(first.contains("/MediaBox [0 0 842")) << "A4 across";
    EXPECT_TRUE(first.contains(QByteArray("\0I\0s\0l\0a\0n\0d\0 \0-\0 \0r\0a\0i\0n", 26))) << "its title";
    EXPECT_TRUE(first.contains(QByteArray("\0v\0a\0r\0n", 8))) << "its creator";

    PrintedDocument upright = onePage();
    upright.orientation = PageOrientation::Portrait;
    upright.pages.push_back(upright.pages.front());
    device.print(upright);
    EXPECT_EQ(bytesOf(file("map.v1.pdf")), first);
    EXPECT_EQ(bytesOf(file("map.v1-2.pdf")), "mine") << "a file that was there is left alone";
    const QByteArray second = bytesOf(file("map.v1-3.pdf"));
    EXPECT_TRUE(second.contains("/MediaBox [0 0 595"));
    EXPECT_EQ(second.count("/Type /Page\n"), 2);
}

TEST(PrinterDevice, PaperIsAddressedFromItsCorner)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("map.pdf"));
    QtPrinterDevice(printerTo(file)).print(onePage());
    const QByteArray page = firstPage(bytesOf(file));
    EXPECT_TRUE(page.contains("\n0.060000000 0 0 -0.060000000 0 595 cm\n"))
        << "1200 dots an inch, from the corner";
    EXPECT_TRUE(page.contains("\n472.500000 472.500000 4252.50000 472.500000 re\n")) << page.constData();
}

TEST(PrinterDevice, WhatCannotBePrintedIsAnError)
{
    const QString file = QStringLiteral("/no/such/folder/map.pdf");
    const RunTimeError noFile = errorOf([&] { QtPrinterDevice(printerTo(file)).print(onePage()); });
    EXPECT_EQ(noFile.number(), ErrorNumber::PathNotFound);
    EXPECT_EQ(noFile.place().path, file);

    auto printer = std::make_unique<QPrinter>();
    printer->setPrinterName(QStringLiteral("no such printer"));
    QtPrinterDevice device(std::move(printer));
    EXPECT_EQ(errorOf([&] { device.print(onePage()); }).number(), ErrorNumber::DeviceIOError);
}
