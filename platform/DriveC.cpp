#include "platform/DriveC.h"

#include "platform/RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace {

/// `name` as it is written in `folder`; `name` itself where nothing there matches.
QString matchingName(const QString& folder, const QString& name)
{
    if (QFileInfo::exists(folder + QLatin1Char('/') + name)) {
        return name;
    }
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    const auto match = std::find_if(entries.begin(), entries.end(), [&name](const QString& entry) {
        return entry.compare(name, Qt::CaseInsensitive) == 0;
    });
    return match == entries.end() ? name : *match;
}

QString matchingPath(QString folder, const QString& rest)
{
    while (folder.endsWith(QLatin1Char('/'))) {
        folder.chop(1);
    }
    if (QString exact = folder + QLatin1Char('/') + rest; QFileInfo::exists(exact)) {
        return exact;
    }
    for (const QString& name : rest.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        folder += QLatin1Char('/') + matchingName(folder, name);
    }
    return folder;
}

} // namespace

DriveC::DriveC()
    : DriveC(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
             QStringLiteral("/varn/drive_c"))
{}

DriveC::DriveC(QString root) : m_root(std::move(root)) {}

QString DriveC::hostPath(const QString& path) const
{
#ifdef Q_OS_WIN
    return path;
#else
    const QString slashed = QString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QString drive = slashed.left(2).toUpper();
    QString rest = slashed.mid(2);
    while (rest.startsWith(QLatin1Char('/'))) {
        rest.remove(0, 1);
    }
    if (drive == QLatin1String("C:")) {
        return matchingPath(m_root, rest);
    }
    if (drive == QLatin1String("Z:")) {
        return matchingPath(QString(), rest);
    }
    throw RunTimeError(ErrorNumber::BadFileName).at({path});
#endif
}

std::optional<QString> DriveC::knownHostPath(const QString& path) const
{
    try {
        return hostPath(path);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

QString DriveC::varnPath(const QString& hostPath) const
{
    const QString absolute = QDir::cleanPath(QFileInfo(hostPath).absoluteFilePath());
#ifdef Q_OS_WIN
    return QDir::toNativeSeparators(absolute);
#else
    const QString root = QDir::cleanPath(m_root);
    const bool onDrive = absolute == root || absolute.startsWith(root + QLatin1Char('/'));
    const QString path =
        onDrive ? QStringLiteral("C:") + absolute.mid(root.size()) : QStringLiteral("Z:") + absolute;
    return QString(path).replace(QLatin1Char('/'), QLatin1Char('\\'));
#endif
}
