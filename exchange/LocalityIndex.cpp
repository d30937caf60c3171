#include "exchange/LocalityIndex.h"

#include "platform/RunTimeError.h"

#include <algorithm>
#include <numeric>

namespace {

QString plainName(const QString& name)
{
    return name.normalized(QString::NormalizationForm_KC).toCaseFolded().simplified();
}

void note(QHash<QString, int>& index, const QString& key, int locality, int several)
{
    const auto found = index.find(key);
    if (found == index.end()) {
        index.insert(key, locality);
    } else if (*found != locality) {
        *found = several;
    }
}

/// How many letters must be put in, taken out or replaced to make one text the other (Levenshtein).
int editDistance(const QString& from, const QString& to)
{
    std::vector<int> row(static_cast<std::size_t>(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < from.size(); ++i) {
        int diagonal = std::exchange(row[0], static_cast<int>(i) + 1);
        for (std::size_t j = 1; j < row.size(); ++j) {
            const int replaced = diagonal + (from[i] == to[static_cast<qsizetype>(j) - 1] ? 0 : 1);
            diagonal = std::exchange(row[j], std::min({replaced, row[j] + 1, row[j - 1] + 1}));
        }
    }
    return row.back();
}

} // namespace

LocalityIndex::LocalityIndex(const std::vector<SourceLocality>& localities)
{
    for (int i = 0; i < static_cast<int>(localities.size()); ++i) {
        const SourceLocality& locality = localities[static_cast<std::size_t>(i)];
        add(locality.id, i);
        add(locality.name, i);
        m_names << locality.name;
    }
}

void LocalityIndex::add(const QString& key, int locality)
{
    if (!key.isEmpty()) {
        note(m_exact, key, locality, Several);
        note(m_plain, plainName(key), locality, Several);
    }
}

std::optional<int> LocalityIndex::find(const QString& key) const
{
    auto found = m_exact.constFind(key);
    if (found == m_exact.constEnd()) {
        found = m_plain.constFind(plainName(key));
        if (found == m_plain.constEnd()) {
            return std::nullopt;
        }
    }
    if (*found == Several) {
        throw RunTimeError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("Several localities are called \"%1\"; give them different names or ids.")
                .arg(key));
    }
    return *found;
}

QString LocalityIndex::nearest(const QString& key) const
{
    constexpr int LettersForAnError = 3;

    const QString wanted = plainName(key);
    QString nearest;
    int least = static_cast<int>(wanted.size()) / LettersForAnError + 2;
    for (const QString& name : m_names) {
        const int distance = editDistance(wanted, plainName(name));
        if (distance < least) {
            least = distance;
            nearest = name;
        }
    }
    return nearest;
}
