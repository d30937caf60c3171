#pragma once

#include <QAbstractTableModel>

class AtlasDocument;
struct VarnModule;

/// The localities of the map as rows, with their word forms of the page: a column for each, and an empty one
/// for one more. An empty word form reads as two double quotes.
class AtlasLocalityTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Number, Name, FirstWord };
    /// The records of the symbols shown that mark the word form, a list of their numbers.
    static constexpr int Marks = Qt::UserRole;

    /// Both must outlive the table.
    AtlasLocalityTable(const VarnModule& varn, AtlasDocument& document, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// A word form as it is typed, a step of the document; a blank one goes.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void showMap();
    void showPage();
    void showWords();
    int rowsNow() const;
    void setWordColumns(int count);
    QVariant word(int locality, int j, int role) const;
    QVariant marks(const QString& word) const;
    QString accessibleText(int locality, int j) const;

    const VarnModule& m_varn;
    AtlasDocument& m_document;
    int m_rows = 0;
    int m_wordColumns = 0;
};
