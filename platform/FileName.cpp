#include "platform/FileName.h"

#include <algorithm>

bool isFileName(const QString& name)
{
    return std::none_of(name.begin(), name.end(), [](QChar character) {
        return character < QLatin1Char(' ') || QStringLiteral("\\/:*?\"<>|").contains(character);
    });
}
