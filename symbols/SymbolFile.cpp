#include "symbols/SymbolFile.h"

#include "platform/FileName.h"

HankoStyle readHankoStyle(SequentialReader& file)
{
    HankoStyle hanko;
    hanko.HankoNo = file.readInteger();
    hanko.LineColor = file.readInteger();
    hanko.PaintColor = file.readInteger();
    hanko.PaintOn = file.readInteger();
    hanko.SymbolSize = file.readInteger();
    hanko.LineThick = file.readInteger();
    return hanko;
}

SymbolSet readSymbolSet(SequentialReader& file)
{
    SymbolSet set;
    set.Explain = file.readString();
    set.NHanrei = file.readCount();
    for (int k = 1; k <= set.NHanrei; ++k) {
        set.HankoWord(k) = file.readString();
        set.HankoCaption(k) = file.readString();
        set.Hanko(k) = readHankoStyle(file);
    }
    return set;
}

void writeSymbolSet(SequentialWriter& file, const SymbolSet& set)
{
    file.write(set.Explain);
    file.write(set.NHanrei);
    for (int k = 1; k <= set.NHanrei; ++k) {
        file.write(set.HankoWord(k), set.HankoCaption(k));
        const HankoStyle& hanko = set.Hanko(k);
        file.write(hanko.HankoNo);
        file.write(hanko.LineColor);
        file.write(hanko.PaintColor);
        file.write(hanko.PaintOn);
        file.write(hanko.SymbolSize);
        file.write(hanko.LineThick);
    }
}

void LoadHankoData(const DriveC& drive, const QString& path, SymbolSet& set)
{
    SymbolSet fresh = readSequentialFile(drive, path, readSymbolSet);
    fresh.SymbolFileName = fileNameOf(path);
    fresh.SymbolFilePath = path;
    fresh.CurrentHanko = fresh.NHanrei;
    fresh.HankoReading = set.HankoReading + 1;
    fresh.SavedRecords.keep(fresh);
    set = std::move(fresh);
}

void SaveHankoData(const DriveC& drive, const QString& path, const SymbolSet& set)
{
    writeSequentialFile(drive, path, [&set](SequentialWriter& file) { writeSymbolSet(file, set); });
}

RunTimeError ofRecord(const RunTimeError& error, const SymbolSet& set, int k)
{
    return error.hasPlace() ? error
                            : error.at({set.SymbolFilePath})
                                  .during(QStringLiteral("Record %1 (%2).").arg(k).arg(set.HankoWord(k)));
}

QString symbolFileStem(const QString& name)
{
    return withoutEnding(name, SymbolFiles.ending);
}

QString symbolFilePath(const Folders& folders, const QString& name)
{
    QString path = folders.dataFolder() + QLatin1Char('\\') + symbolFileStem(name) + SymbolFiles.ending;
    if (!isFileName(name)) {
        throw RunTimeError(ErrorNumber::BadFileName).at({path});
    }
    return path;
}
