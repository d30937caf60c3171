#include "atlas/AtlasSelection.h"

void AtlasSelection::setLocalities(const Numbers& localities)
{
    if (m_localities != localities) {
        m_localities = localities;
        Q_EMIT localitiesChanged();
    }
}

void AtlasSelection::setRecords(const Numbers& records)
{
    if (m_records != records) {
        m_records = records;
        Q_EMIT recordsChanged();
    }
}
