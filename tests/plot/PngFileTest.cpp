#include "plot/PngFile.h"

#include <QImage>
#include <QRandomGenerator>

#include <gtest/gtest.h>

TEST(PngFile, IsReadAsTheImageThatWasWritten)
{
    QRandomGenerator random(1);
    for (const QSize size : {QSize(1, 1), QSize(3, 2), QSize(701, 500)}) {
        QImage image(size, QImage::Format_RGB32);
        image.setDotsPerMeterX(7559);
        image.setDotsPerMeterY(3780);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) { // noise, which does not become smaller, and plain rows
                image.setPixel(x, y, y % 2 == 0 ? 0xff000000 | random.generate() : 0xff336699);
            }
        }
        const QImage read = QImage::fromData(pngBytes(image), "png");
        EXPECT_EQ(read.convertToFormat(QImage::Format_RGB32), image) << size.width();
        EXPECT_FALSE(read.hasAlphaChannel());
        EXPECT_EQ(read.dotsPerMeterX(), 7559);
        EXPECT_EQ(read.dotsPerMeterY(), 3780);
    }
}
