#include "analysis/ContrastData.h"

#include "platform/Numbers.h"

namespace {

qint16 summed(int sum, int j)
{
    try {
        return toInteger(sum);
    } catch (const RunTimeError& error) {
        throw error.during(QStringLiteral("The sum at locality %1.").arg(j));
    }
}

void requireWordform(const CumulativeTable& table, const ContrastData& contrast, int side, int t)
{
    const int k = contrast.ContrastWord(side, t);
    if (k < 1 || k > table.NumWordforms) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("Item %1 has word form %2 (%3), which the table does not have.")
                               .arg(side)
                               .arg(k)
                               .arg(contrast.ContrastWordName(side, t)));
    }
}

void requireWordforms(const CumulativeTable& table, const ContrastData& contrast)
{
    for (int side = 1; side <= 2; ++side) {
        for (int t = 1; t <= contrast.ContrastCount(side); ++t) {
            requireWordform(table, contrast, side, t);
        }
    }
}

} // namespace

void outdateSums(ContrastData& contrast)
{
    contrast.ContrastAnalysed = false;
}

void analyseContrast(const CumulativeTable& table, int localities, ContrastData& contrast)
{
    requireWordforms(table, contrast);
    decltype(contrast.ContrastSum) sums;
    for (int side = 1; side <= 2; ++side) {
        for (int t = 1; t <= contrast.ContrastCount(side); ++t) {
            const int k = contrast.ContrastWord(side, t);
            for (int j = 1; j <= localities; ++j) {
                sums(side, j) = summed(sums(side, j) + table.Counts(k, j), j);
            }
        }
    }
    for (int j = 1; j <= localities; ++j) {
        sums(0, j) = summed(sums(1, j) - sums(2, j), j);
    }
    contrast.ContrastSum = std::move(sums);
    contrast.ContrastAnalysed = true;
}

ContrastData readContrast(SequentialReader& file)
{
    ContrastData contrast;
    contrast.ContrastTitle = file.readString();
    contrast.ContrastSteps = file.readNumber();
    contrast.ContrastMaxSize = file.readInteger();
    for (int side = 1; side <= 2; ++side) {
        contrast.ContrastCount(side) = file.readCount();
        contrast.ContrastSymbolColor(side) = file.readInteger();
        contrast.ContrastPaintColor(side) = file.readInteger();
        for (int t = 1; t <= contrast.ContrastCount(side); ++t) {
            contrast.ContrastWordName(side, t) = file.readString();
            contrast.ContrastWord(side, t) = file.readInteger();
        }
    }
    return contrast;
}

void writeContrast(SequentialWriter& file, const ContrastData& contrast)
{
    file.write(contrast.ContrastTitle, contrast.ContrastSteps, contrast.ContrastMaxSize);
    for (int side = 1; side <= 2; ++side) {
        file.write(contrast.ContrastCount(side));
        file.write(contrast.ContrastSymbolColor(side), contrast.ContrastPaintColor(side));
        for (int t = 1; t <= contrast.ContrastCount(side); ++t) {
            file.write(contrast.ContrastWordName(side, t), contrast.ContrastWord(side, t));
        }
    }
}

void LoadRankFile(const DriveC& drive, const QString& path, ContrastData& contrast)
{
    contrast = readSequentialFile(drive, path, readContrast);
}

void SaveRankFile(const DriveC& drive, const QString& path, const ContrastData& contrast)
{
    writeSequentialFile(drive, path, [&contrast](SequentialWriter& file) { writeContrast(file, contrast); });
}
