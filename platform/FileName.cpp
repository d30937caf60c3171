#include "platform/FileName.h"

#include <algorithm>

bool isFileName(const QString& name)
{
    return std::none_of(name.begin(), name.end(), [](QChar character) {
        return character < QLatin1Char(' ') || QStringLiteral("\\/:*?\"<>|").contains(character);
    });
}

QString folderOf(const QString& path)
{
    return path.left(std::max<qsizetype>(path.lastIndexOf(QLatin1Char('\\')), 0));
}

QString fileNameOf(const QString& path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('\\')) + 1);
}

QString stemOf(const QString& path)
{
    const QString name = fileNameOf(path);
    return name.left(name.lastIndexOf(QLatin1Char('.'))); // the whole name where it has no dot
}

QString withEnding(const QString& path, const QString& ending)
{
    const qsizetype endingLength = fileNameOf(path).size() - stemOf(path).size();
    return path.chopped(endingLength) + ending;
}

QString withoutEnding(const QString& name, const QString& ending)
{
    return name.endsWith(ending, Qt::CaseInsensitive) ? name.chopped(ending.size()) : name;
}
