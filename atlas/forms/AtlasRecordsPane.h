#pragma once

#include "atlas/RecordEdits.h"

#include <QWidget>

#include <optional>

class AtlasDocument;
class AtlasSelection;
class Dialogs;
class MarkedWordsPane;
class QLabel;
class RecordCommands;
class RecordsModel;
class RecordsTable;
class SymbolPopup;
struct VarnModule;

/// The records of the item's symbol set, and the word forms that they do not mark, or mark twice. Its
/// `actions` are what can be done with records, for menus.
class AtlasRecordsPane : public QWidget
{
    Q_OBJECT

public:
    AtlasRecordsPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection, Dialogs& dialogs);
    ~AtlasRecordsPane() override;

private:
    QLayout* tools();
    void addWidgets();
    void connectWidgets();

    void showRecords();
    QString note() const;

    void openSymbols();
    void previewStyle(StyleField field, qint16 value);
    void takeStyle();
    void giveUpStyle();

    AtlasDocument& m_document;
    AtlasSelection& m_selection;
    RecordsModel* m_model;
    RecordsTable* m_table;
    QLabel* m_note;
    MarkedWordsPane* m_words;
    SymbolPopup* m_popup;
    RecordCommands* m_commands;
    /// The records as the popup has changed them so far, and which of them it changes.
    std::optional<SymbolRecords> m_styled;
    RecordNumbers m_styledNumbers;
};
