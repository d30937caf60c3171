#pragma once

#include "exchange/SourceSurvey.h"

#include <QHash>

#include <optional>

/// Finds localities by what tables call them: by id, by name, and by what is left of a name without case,
/// marks of width and blanks.
class LocalityIndex
{
public:
    explicit LocalityIndex(const std::vector<SourceLocality>& localities);

    /// The locality (from 0) that `key` means. Nothing where there is none. Raises type mismatch where there
    /// are several.
    std::optional<int> find(const QString& key) const;
    /// The name that is spelled most like `key`; empty where none is near.
    QString nearest(const QString& key) const;

private:
    void add(const QString& key, int locality);

    static constexpr int Several = -1;
    QHash<QString, int> m_exact;
    QHash<QString, int> m_plain;
    QStringList m_names;
};
