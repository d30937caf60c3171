#include "analysis/CumulativeFile.h"

#include "analysis/CountedItemsFile.h"
#include "platform/FileName.h"

#include <QFile>
#include <QLockFile>

namespace {

void totalIsAtPath(const QString& path, QByteArray bytes, CumulativeData& data)
{
    data.TotalFilePath = path;
    data.TotalFileBytes = std::move(bytes);
    data.SavedTable.keep(data);
}

/// Keeps other programs from saving to the file at `path` at the same time. The lock of a program that ended
/// without a word does not count.
class SaveLock
{
public:
    SaveLock(const DriveC& drive, const QString& path)
        : m_lock(drive.hostPath(path) + QStringLiteral(".lock"))
    {
        constexpr int LongestWait = 2000; // ms
        if (!m_lock.tryLock(LongestWait) && m_lock.error() == QLockFile::LockFailedError) {
            throw RunTimeError(ErrorNumber::PermissionDenied,
                               QStringLiteral("Another program is saving the file."))
                .at({path});
        } // where no lock can be made, no file can be: writing it says why
    }

private:
    QLockFile m_lock;
};

void requireAsItWas(const DriveC& drive, const QString& path, const CumulativeData& data)
{
    if (isOwnFile(data, path) && fileExists(drive, path) && readBytes(drive, path) != data.TotalFileBytes) {
        throw RunTimeError(ErrorNumber::PermissionDenied,
                           QStringLiteral("The file was changed by another program since it was opened. Open "
                                          "it again, or save under another name."))
            .at({path});
    }
}

/// The names of the items of the table at `path`; why they are not known where their file cannot be read.
std::optional<RunTimeError> loadCountedItems(const DriveC& drive, const QString& path, CumulativeTable& table)
{
    const QString namesPath = countedItemsPath(path);
    if (!fileExists(drive, namesPath)) {
        return std::nullopt;
    }
    try {
        const int items = table.NumItemsAccumulated;
        table.CountedItems = readSequentialFile(
            drive, namesPath, [items](SequentialReader& file) { return readCountedItems(file, items); });
    } catch (const RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

} // namespace

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
            continue; // no line, not even its count: the file cannot be read past here
        }
        file.writeField(data.NumSpecifyChars(k));
        for (int c = 1; c <= strings; ++c) {
            file.writeField(data.SpecifyChars(k, c));
        }
        file.endStatement();
    }
}

std::optional<RunTimeError> LoadTotalFile(const DriveC& drive, const QString& path, int localities,
                                          CumulativeData& data)
{
    QByteArray bytes = readBytes(drive, path); // a change while it is read is a change since it was read
    auto table = readSequentialFile(
        drive, path, [localities](SequentialReader& file) { return readTotal(file, localities); });
    auto namesError = loadCountedItems(drive, path, table);
    static_cast<CumulativeTable&>(data) = std::move(table);
    data.TotalFileName = stemOf(path);
    data.CurrentWordform = 1;
    totalIsAtPath(path, std::move(bytes), data);
    return namesError;
}

QString totalFilePath(const QString& folder, const CumulativeData& data)
{
    return folder + QLatin1Char('\\') + data.TotalFileName + TotalFiles.ending;
}

void SaveTotalFile(const DriveC& drive, const QString& path, int localities, CumulativeData& data)
{
    const QString namesPath = countedItemsPath(path);
    const bool isStaleBeside = data.NumItemsAccumulated == 0 || !isOwnFile(data, path);
    const SaveLock lock(drive, path);
    requireAsItWas(drive, path, data);
    if (!data.CountedItems.isEmpty()) {
        writeSequentialFile(drive, namesPath,
                            [&data](SequentialWriter& file) { writeCountedItems(file, data); });
    }
    SequentialWriter file;
    writeTotal(file, data, localities);
    replaceFile(drive, path, file.bytes());
    totalIsAtPath(path, file.bytes(), data);
    if (data.CountedItems.isEmpty() && isStaleBeside) {
        QFile::remove(drive.hostPath(namesPath));
    }
}

bool isOwnFile(const CumulativeData& data, const QString& path)
{
    return path.compare(data.TotalFilePath, Qt::CaseInsensitive) == 0;
}

void LoadSetData(const DriveC& drive, const QString& path, CumulativeData& data)
{
    readSequentialFile(drive, path, [&data](SequentialReader& file) { readSpecifyChars(file, data); });
    data.SpecifyFileName = path;
    data.SavedChars.keep(data);
}

void SaveSetData(const DriveC& drive, const QString& path, CumulativeData& data)
{
    writeSequentialFile(drive, path, [&data](SequentialWriter& file) { writeSpecifyChars(file, data); });
    data.SpecifyFileName = path;
    data.SavedChars.keep(data);
}
