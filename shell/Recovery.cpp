#include "shell/Recovery.h"

#include "analysis/CountedItemsFile.h"
#include "analysis/CumulativeFile.h"
#include "lingdata/InputKindsFile.h"
#include "lingdata/LinguisticFile.h"
#include "platform/FileName.h"
#include "platform/Folder.h"
#include "shell/MapChoice.h"
#include "symbols/SymbolFile.h"

#include <QDateTime>
#include <QDir>
#include <QLockFile>

#include <utility>

namespace {

const QLatin1String LockName("lock");

QString recoveryFolder()
{
    return installationRoot() + QStringLiteral("Varn\\Recovery");
}

QString lockPath(const DriveC& drive, const QString& folder)
{
    return drive.hostPath(folder) + QLatin1Char('/') + LockName;
}

/// Paths of the files of kept work.
struct KeptFiles
{
    explicit KeptFiles(const QString& folder)
        : contents(folder + QStringLiteral("\\contents.dat")),
          item(folder + QStringLiteral("\\item") + ItemFiles.ending),
          kinds(folder + QStringLiteral("\\item") + InputKindsEnding),
          symbols(folder + QStringLiteral("\\symbols") + SymbolFiles.ending),
          table(folder + QStringLiteral("\\table") + TotalFiles.ending),
          strings(folder + QStringLiteral("\\table") + StringFiles.ending),
          countedItems(countedItemsPath(table)), pages(folder + QStringLiteral("\\page"))
    {}

    /// Of the page of that number.
    QString pageWords(std::size_t page) const { return pages + QString::number(page) + ItemFiles.ending; }
    QString pageSymbols(std::size_t page) const { return pages + QString::number(page) + SymbolFiles.ending; }

    QString contents;
    QString item;
    QString kinds;
    QString symbols;
    QString table;
    QString strings;
    QString countedItems;
    QString pages;
};

/// A line for every word form, however many strings it has, which a file that is saved does not write.
void writeAllStrings(SequentialWriter& file, const CumulativeData& data)
{
    file.write(data.NumWordforms);
    for (int k = 1; k <= data.NumWordforms; ++k) {
        file.writeField(data.NumSpecifyChars(k));
        for (int c = 1; c <= data.NumSpecifyChars(k); ++c) {
            file.writeField(data.SpecifyChars(k, c));
        }
        file.endStatement();
    }
}

void writeAtlasContents(SequentialWriter& file, const UnsavedWork& work)
{
    file.write(work.pages.size());
    for (const UnsavedPage& page : work.pages) {
        file.write(page.itemPath, page.answers.has_value(), page.symbols.has_value(),
                   page.symbols ? page.symbols->SymbolFilePath : QString());
    }
    const QPointF legend = work.legendPlace.value_or(QPointF());
    file.write(work.legendPlace.has_value(), legend.x(), legend.y());
}

void readAtlasContents(SequentialReader& file, UnsavedWork& work)
{
    const int pages = file.readCount();
    for (int n = 0; n < pages; ++n) {
        UnsavedPage page{file.readString(), {}, {}};
        if (file.readBoolean()) {
            page.answers.emplace();
        }
        const bool symbols = file.readBoolean();
        if (const QString path = file.readString(); symbols) {
            page.symbols.emplace().SymbolFilePath = path;
        }
        work.pages.push_back(std::move(page));
    }
    const bool legend = file.readBoolean();
    const double x = file.readNumber();
    const QPointF place(x, file.readNumber());
    if (legend) {
        work.legendPlace = place;
    }
}

void writePages(const UnsavedWork& work, const DriveC& drive, const KeptFiles& files)
{
    for (std::size_t n = 0; n < work.pages.size(); ++n) {
        const UnsavedPage& page = work.pages[n];
        if (page.answers) {
            writeSequentialFile(drive, files.pageWords(n),
                                [&](auto& file) { writeItem(file, *page.answers); });
        }
        if (page.symbols) {
            writeSequentialFile(drive, files.pageSymbols(n),
                                [&](auto& file) { writeSymbolSet(file, *page.symbols); });
        }
    }
}

void readPages(const DriveC& drive, const KeptFiles& files, UnsavedWork& work)
{
    for (std::size_t n = 0; n < work.pages.size(); ++n) {
        UnsavedPage& page = work.pages[n];
        if (page.answers) {
            page.answers = readSequentialFile(drive, files.pageWords(n), readItem);
        }
        if (page.symbols) {
            const QString path = page.symbols->SymbolFilePath;
            page.symbols = readSequentialFile(drive, files.pageSymbols(n), readSymbolSet);
            page.symbols->SymbolFilePath = path;
            page.symbols->SymbolFileName = fileNameOf(path);
        }
    }
}

void writeContents(SequentialWriter& file, const UnsavedWork& work)
{
    file.write(work.map.VarnPath, work.map.VarnMapName, work.localities);
    file.write(work.item.has_value(), work.item ? work.item->fileName : QString());
    file.write(work.symbols.has_value(), work.symbols ? work.symbols->SymbolFileName : QString());
    const CumulativeData none;
    const CumulativeData& table = work.table ? *work.table : none;
    file.write(work.table.has_value(), table.TotalFileName, table.TotalFilePath, table.SpecifyFileName);
    writeAtlasContents(file, work);
}

/// What the parts are; the parts themselves are still empty.
UnsavedWork readContents(SequentialReader& file)
{
    UnsavedWork work;
    work.map.VarnPath = file.readString();
    work.map.VarnMapName = file.readString();
    work.localities = file.readCount();
    const bool item = file.readBoolean();
    if (const QString name = file.readString(); item) {
        work.item.emplace().fileName = name;
    }
    const bool symbols = file.readBoolean();
    if (const QString name = file.readString(); symbols) {
        work.symbols.emplace().SymbolFileName = name;
    }
    const bool isTable = file.readBoolean();
    CumulativeData table;
    table.TotalFileName = file.readString();
    table.TotalFilePath = file.readString();
    table.SpecifyFileName = file.readString();
    if (isTable) {
        work.table = std::move(table);
    }
    if (file.hasMore()) { // work that was kept before there was an atlas has none
        readAtlasContents(file, work);
    }
    return work;
}

} // namespace

void writeWork(const UnsavedWork& work, const DriveC& drive, const QString& folder)
{
    const KeptFiles files(folder);
    makeFolder(drive, folder);
    if (work.item) {
        writeSequentialFile(drive, files.item, [&](auto& file) { writeItem(file, work.item->answers); });
        writeSequentialFile(drive, files.kinds, [&](auto& file) { writeInputKinds(file, work.item->kinds); });
    }
    if (work.symbols) {
        writeSequentialFile(drive, files.symbols, [&](auto& file) { writeSymbolSet(file, *work.symbols); });
    }
    if (work.table) {
        writeSequentialFile(drive, files.table,
                            [&](auto& file) { writeTotal(file, *work.table, work.localities); });
        writeSequentialFile(drive, files.strings, [&](auto& file) { writeAllStrings(file, *work.table); });
        writeSequentialFile(drive, files.countedItems,
                            [&](auto& file) { writeCountedItems(file, *work.table); });
    }
    writePages(work, drive, files);
    writeSequentialFile(drive, files.contents, [&](auto& file) { writeContents(file, work); });
}

UnsavedWork readWork(const DriveC& drive, const QString& folder)
{
    const KeptFiles files(folder);
    UnsavedWork work = readSequentialFile(drive, files.contents, readContents);
    if (work.item) {
        work.item->answers = readSequentialFile(drive, files.item, readItem);
        work.item->kinds = readSequentialFile(drive, files.kinds, readInputKinds);
    }
    if (work.symbols) {
        const QString name =
            std::exchange(*work.symbols, readSequentialFile(drive, files.symbols, readSymbolSet))
                .SymbolFileName;
        work.symbols->SymbolFileName = name;
    }
    if (work.table) {
        CumulativeData& table = *work.table;
        readSequentialFile(drive, files.strings, [&](auto& file) { readSpecifyChars(file, table); });
        static_cast<CumulativeTable&>(table) = readSequentialFile(
            drive, files.table, [&](auto& file) { return readTotal(file, work.localities); });
        table.CountedItems = readSequentialFile(drive, files.countedItems, [&](auto& file) {
            return readCountedItems(file, table.NumItemsAccumulated);
        });
    }
    readPages(drive, files, work);
    return work;
}

Recovery::Recovery(DriveC drive) : m_drive(std::move(drive)) {}

Recovery::~Recovery() = default;

void Recovery::lock()
{
    const QString name = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh-mm-ss-zzz"));
    const QString folder = recoveryFolder() + QLatin1Char('\\') + name;
    makeFolder(m_drive, folder);
    auto lock = std::make_unique<QLockFile>(lockPath(m_drive, folder));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) {
        throw RunTimeError(ErrorNumber::PermissionDenied, QStringLiteral("The folder cannot be locked."))
            .at({folder});
    }
    m_folder = folder;
    m_lock = std::move(lock);
}

void Recovery::keep(const UnsavedWork& work)
{
    if (!work.isEmpty()) {
        if (!m_lock) {
            lock();
        }
        writeWork(work, m_drive, m_folder);
    } else if (m_lock) {
        m_lock.reset();
        removeLeftBehind(m_drive, m_folder);
    }
}

QStringList foldersLeftBehind(const DriveC& drive)
{
    QStringList folders;
    const QDir recovery(drive.hostPath(recoveryFolder()));
    for (const QString& name : recovery.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString folder = recoveryFolder() + QLatin1Char('\\') + name;
        QLockFile lock(lockPath(drive, folder));
        lock.setStaleLockTime(0);
        const bool setAside = name.endsWith(QStringLiteral(".unreadable"));
        if (!setAside && QFile::exists(drive.hostPath(KeptFiles(folder).contents)) && lock.tryLock(0)) {
            folders << folder;
        }
    }
    return folders;
}

void removeLeftBehind(const DriveC& drive, const QString& folder)
{
    QDir(drive.hostPath(folder)).removeRecursively();
    QDir().rmdir(drive.hostPath(recoveryFolder())); // stays where it is not empty
}

QString setAside(const DriveC& drive, const QString& folder)
{
    QString aside = folder + QStringLiteral(".unreadable");
    QDir().rename(drive.hostPath(folder), drive.hostPath(aside));
    return aside;
}
