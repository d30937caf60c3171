#pragma once

#include "atlas/RecordEdits.h"

#include <QObject>

class AtlasDocument;
class AtlasSelection;
class Dialogs;
class MarkedWordsPane;
class QAction;
class QKeySequence;
class QWidget;
class RecordsModel;
class RecordsTable;
struct VarnModule;

/// What the commands for records work on.
struct RecordCommandParts
{
    VarnModule& varn;
    AtlasDocument& document;
    AtlasSelection& selection;
    Dialogs& dialogs;
    RecordsModel& model;
    RecordsTable& table;
    MarkedWordsPane& words;
};

/// The commands for the chosen symbol records, as actions of a widget in which their keys work.
class RecordCommands : public QObject
{
    Q_OBJECT

public:
    RecordCommands(const RecordCommandParts& parts, QWidget* widget);

    /// Enables what can be done now.
    void refresh();

    /// Makes records for the chosen word forms that have none, as many as there is room for.
    void newRecordsOfWords();

private:
    using Handler = void (RecordCommands::*)();

    QAction* add(const char* name, const QString& text, const QKeySequence& key, Handler handler);
    void addSeparator();
    void addRecordActions();
    void addSetActions();

    void newRecord();
    void deleteRecords();
    void changeSymbols();
    void moveUp();
    void moveDown();
    void sameSymbol();
    void makeSymbols();
    void selectLocalities();

    const SymbolRecords& records() const;

    RecordCommandParts m_parts;
    QWidget* m_widget;
    QAction* m_new = nullptr;
    QAction* m_newOfWords = nullptr;
    QAction* m_delete = nullptr;
    QAction* m_symbol = nullptr;
    QAction* m_sameSymbol = nullptr;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
    QAction* m_localities = nullptr;
    QAction* m_makeSymbols = nullptr;
};
