#include "lingdata/InputKindsFile.h"

QStringList readInputKinds(SequentialReader& file)
{
    const int count = file.readCount();
    if (count > MostInputKinds) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("%1 is not in 0 to %2.").arg(count).arg(MostInputKinds));
    }
    QStringList kinds;
    for (int k = 1; k <= count; ++k) {
        kinds << file.readString();
    }
    return kinds;
}

void writeInputKinds(SequentialWriter& file, const QStringList& kinds)
{
    file.write(kinds.size());
    for (const QString& kind : kinds) {
        file.write(kind);
    }
}
