#pragma once

#include <QObject>

#include <set>

/// What is chosen in the atlas window: localities, and records of the symbol set, both numbered from 1. All
/// its views show the same.
class AtlasSelection : public QObject
{
    Q_OBJECT

public:
    using Numbers = std::set<int>;

    const Numbers& localities() const { return m_localities; }
    const Numbers& records() const { return m_records; }

    void setLocalities(const Numbers& localities);
    void setRecords(const Numbers& records);

Q_SIGNALS:
    void localitiesChanged();
    void recordsChanged();
    /// A locality is to be brought into view.
    void localitySought(int locality);

private:
    Numbers m_localities;
    Numbers m_records;
};
