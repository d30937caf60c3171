#include "analysis/CumulativeFile.h"

namespace {

QString baseName(const QString& path)
{
    const QString name = path.mid(path.lastIndexOf(QLatin1Char('\\')) + 1);
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? name : name.left(dot);
}

void totalIsAtPath(const QString& path, CumulativeData& data)
{
    data.TotalFilePath = path;
    data.SavedTable = data;
}

QByteArray fileContents(const CumulativeTable& table, int localities)
{
    SequentialWriter file;
    writeTotal(file, table, localities);
    return file.bytes();
}

} // namespace

void setNumWordforms(CumulativeData& data, int number)
{
    if (number != 0) {
        static_cast<void>(data.WordformName(number));
    }
    data.NumWordforms = number;
    data.CurrentWordform = 1;
}

QStringList wordformNames(const CumulativeTable& table)
{
    QStringList names;
    for (int k = 1; k <= table.NumWordforms; ++k) {
        names << table.WordformName(k);
    }
    return names;
}

CumulativeTable readTotal(SequentialReader& file, int localities)
{
    CumulativeTable table;
    table.NumWordforms = file.readCount();
    table.NumItemsAccumulated = file.readCount();
    table.MapCaption = file.readString();
    for (int k = 1; k <= table.NumWordforms; ++k) {
        table.WordformName(k) = file.readString();
        table.WordformSymbolColor(k) = file.readInteger();
        table.WordformPaintColor(k) = file.readInteger();
        table.WordformExtraValue(k) = file.readValue();
        table.WordformExtraInt(k) = file.readInteger();
    }
    for (int j = 1; j <= localities; ++j) {
        for (int k = 1; k <= table.NumWordforms; ++k) {
            table.Counts(k, j) = file.readInteger();
        }
    }
    return table;
}

void writeTotal(SequentialWriter& file, const CumulativeTable& table, int localities)
{
    file.write(table.NumWordforms, table.NumItemsAccumulated, table.MapCaption);
    for (int k = 1; k <= table.NumWordforms; ++k) {
        file.write(table.WordformName(k));
        file.write(table.WordformSymbolColor(k), table.WordformPaintColor(k));
        file.write(table.WordformExtraValue(k), table.WordformExtraInt(k));
    }
    for (int j = 1; j <= localities; ++j) {
        for (int k = 1; k <= table.NumWordforms; ++k) {
            file.writeField(table.Counts(k, j));
        }
        file.endStatement();
    }
}

void readSpecifyChars(SequentialReader& file, CumulativeData& data)
{
    const int number = file.readCount();
    SpecifiedChars chars;
    for (int k = 1; k <= number; ++k) {
        chars.NumSpecifyChars(k) = file.readCount();
        for (int c = 1; c <= chars.NumSpecifyChars(k); ++c) {
            chars.SpecifyChars(k, c) = file.readString();
        }
    }
    setNumWordforms(data, number);
    static_cast<SpecifiedChars&>(data) = std::move(chars);
}

void writeSpecifyChars(SequentialWriter& file, const CumulativeData& data)
{
    constexpr int MostStrings = 10;
    file.write(data.NumWordforms);
    for (int k = 1; k <= data.NumWordforms; ++k) {
        const int strings = data.NumSpecifyChars(k);
        if (strings < 1 || strings > MostStrings) {
            continue;
        }
        file.writeField(data.NumSpecifyChars(k));
        for (int c = 1; c <= strings; ++c) {
            file.writeField(data.SpecifyChars(k, c));
        }
        file.endStatement();
    }
}

void LoadTotalFile(const DriveC& drive, const QString& path, int localities, CumulativeData& data)
{
    static_cast<CumulativeTable&>(data) = readSequentialFile(
        drive, path, [localities](SequentialReader& file) { return readTotal(file, localities); });
    data.TotalFileName = baseName(path);
    data.CurrentWordform = 1;
    totalIsAtPath(path, data);
}

void SaveTotalFile(const DriveC& drive, const QString& dataFolder, int localities, CumulativeData& data)
{
    const QString path = dataFolder + QLatin1Char('\\') + data.TotalFileName + QStringLiteral(".ttl");
    writeSequentialFile(drive, path,
                        [&data, localities](SequentialWriter& file) { writeTotal(file, data, localities); });
    totalIsAtPath(path, data);
}

bool isTableUnsaved(const CumulativeData& data, int localities)
{
    CumulativeTable saved = data.SavedTable;
    if (data.TotalFilePath.isEmpty()) {
        saved.NumWordforms = data.NumWordforms; // a number without names is nothing to lose
    }
    return fileContents(data, localities) != fileContents(saved, localities);
}

bool areCharsUnsaved(const CumulativeData& data)
{
    for (int k = 1; k <= data.NumWordforms; ++k) {
        if (data.NumSpecifyChars(k) != data.SavedChars.NumSpecifyChars(k)) {
            return true;
        }
        for (int c = 1; c <= data.NumSpecifyChars(k); ++c) {
            if (data.SpecifyChars(k, c) != data.SavedChars.SpecifyChars(k, c)) {
                return true;
            }
        }
    }
    return false;
}

void LoadSetData(const DriveC& drive, const QString& path, CumulativeData& data)
{
    readSequentialFile(drive, path, [&data](SequentialReader& file) { readSpecifyChars(file, data); });
    data.SpecifyFileName = path;
    data.SavedChars = data;
}

void SaveSetData(const DriveC& drive, const QString& path, CumulativeData& data)
{
    writeSequentialFile(drive, path, [&data](SequentialWriter& file) { writeSpecifyChars(file, data); });
    data.SpecifyFileName = path;
    data.SavedChars = data;
}
