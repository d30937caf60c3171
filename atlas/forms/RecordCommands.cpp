#include "atlas/forms/RecordCommands.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "atlas/forms/MarkedWordsPane.h"
#include "atlas/forms/RecordsModel.h"
#include "atlas/forms/RecordsTable.h"
#include "platform/Dialogs.h"
#include "shell/VarnModule.h"

#include <QAction>

#include <algorithm>

RecordCommands::RecordCommands(const RecordCommandParts& parts, QWidget* widget)
    : QObject(widget), m_parts(parts), m_widget(widget)
{
    addRecordActions();
    addSeparator();
    addSetActions();
}

QAction* RecordCommands::add(const char* name, const QString& text, const QKeySequence& key, Handler handler)
{
    auto* action = new QAction(text, m_widget); // the widget owns it
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, handler);
    m_widget->addAction(action);
    return action;
}

void RecordCommands::addSeparator()
{
    auto* separator = new QAction(m_widget); // the widget owns it
    separator->setSeparator(true);
    m_widget->addAction(separator);
}

void RecordCommands::addRecordActions()
{
    m_new = add("mnuNewRecord", QStringLiteral("&New Record"), Qt::Key_Insert, &RecordCommands::newRecord);
    m_newOfWords = add("mnuNewRecordOfWord", QStringLiteral("New Record for &Word Form"),
                       Qt::CTRL | Qt::Key_Insert, &RecordCommands::newRecordsOfWords);
    m_delete = add("mnuDeleteRecord", QStringLiteral("&Delete Record"), QKeySequence::Delete,
                   &RecordCommands::deleteRecords);
    addSeparator();
    m_symbol =
        add("mnuChangeSymbol", QStringLiteral("&Symbol..."), Qt::Key_F4, &RecordCommands::changeSymbols);
    m_sameSymbol = add("mnuSameSymbol", QStringLiteral("Same Symbol for Se&lected"), Qt::CTRL | Qt::Key_G,
                       &RecordCommands::sameSymbol);
    m_up = add("mnuRecordUp", QStringLiteral("Move &Up"), Qt::ALT | Qt::Key_Up, &RecordCommands::moveUp);
    m_down =
        add("mnuRecordDown", QStringLiteral("Move D&own"), Qt::ALT | Qt::Key_Down, &RecordCommands::moveDown);
    m_localities = add("mnuSelectLocalities", QStringLiteral("Select Localities of &Kind"), {},
                       &RecordCommands::selectLocalities);
}

void RecordCommands::addSetActions()
{
    m_makeSymbols = add("mnuMakeSymbols", QStringLiteral("&Make Symbols"), {}, &RecordCommands::makeSymbols);
    m_new->setIconText(QStringLiteral("New"));
    m_delete->setIconText(QStringLiteral("Delete"));
    m_symbol->setIconText(QStringLiteral("Symbol"));
    m_sameSymbol->setIconText(QStringLiteral("Same Symbol"));
    m_sameSymbol->setToolTip(
        QStringLiteral("Put the selected kinds under one symbol and one row of the legend"));
    m_makeSymbols->setToolTip(QStringLiteral("Give each word form of the item a symbol of its own"));
}

const SymbolRecords& RecordCommands::records() const
{
    return m_parts.document.page().symbols;
}

void RecordCommands::refresh()
{
    const RecordNumbers chosen = m_parts.table.chosenRecords();
    const bool isEditable = m_parts.model.isEditable();
    const bool hasChosen = isEditable && !chosen.empty();
    m_new->setEnabled(m_parts.model.hasRoom());
    m_newOfWords->setEnabled(m_parts.model.hasRoom() && !m_parts.words.chosenUnmarked().isEmpty());
    m_delete->setEnabled(hasChosen);
    m_symbol->setEnabled(hasChosen);
    m_sameSymbol->setEnabled(isEditable && chosen.size() > 1);
    m_up->setEnabled(hasChosen && *chosen.begin() > 1);
    m_down->setEnabled(hasChosen && *chosen.rbegin() < records().NHanrei);
    m_localities->setEnabled(!chosen.empty());
    m_makeSymbols->setEnabled(isEditable && !m_parts.model.words().empty());
}

void RecordCommands::newRecord()
{
    m_parts.table.typeNewRecord();
}

void RecordCommands::newRecordsOfWords()
{
    if (!m_newOfWords->isEnabled()) {
        return;
    }
    SymbolRecords more = records();
    RecordNumbers made;
    for (const QString& word : m_parts.words.chosenUnmarked()) {
        if (more.NHanrei < MostRecords) {
            more = withRecord(more, word, m_parts.varn.Nsquare);
            made.insert(more.NHanrei);
        }
    }
    m_parts.document.setSymbols(more, QStringLiteral("New Record"));
    m_parts.table.chooseRecords(made);
}

void RecordCommands::deleteRecords()
{
    const RecordNumbers chosen = m_parts.table.chosenRecords();
    m_parts.document.setSymbols(withoutRecords(records(), chosen), QStringLiteral("Delete Record"));
    const int next = std::min(*chosen.begin(), records().NHanrei);
    m_parts.table.chooseRecords(next > 0 ? RecordNumbers{next} : RecordNumbers());
}

void RecordCommands::changeSymbols()
{
    Q_EMIT m_parts.table.symbolWanted();
}

void RecordCommands::moveUp()
{
    const RecordNumbers chosen = m_parts.table.chosenRecords();
    m_parts.model.move(chosen, *chosen.begin() - 1);
}

void RecordCommands::moveDown()
{
    const RecordNumbers chosen = m_parts.table.chosenRecords();
    m_parts.model.move(chosen, *chosen.rbegin() + 2);
}

void RecordCommands::sameSymbol()
{
    m_parts.document.setSymbols(withSameSymbol(records(), m_parts.table.chosenRecords()),
                                QStringLiteral("Same Symbol"));
}

void RecordCommands::makeSymbols()
{
    const int there = records().NHanrei;
    if (there == 0 || m_parts.dialogs.askYesNo(
                          QStringLiteral("Replace the %1 records by one for each word form ?").arg(there),
                          QStringLiteral("Make Symbols"))) {
        m_parts.document.setSymbols(madeRecords(m_parts.document.page().item, m_parts.varn.Nsquare),
                                    QStringLiteral("Make Symbols"));
    }
}

void RecordCommands::selectLocalities()
{
    AtlasSelection::Numbers localities;
    for (const int k : m_parts.table.chosenRecords()) {
        const RecordCount& count = m_parts.model.counts().records.at(static_cast<std::size_t>(k - 1));
        localities.insert(count.localities.begin(), count.localities.end());
    }
    m_parts.selection.setLocalities(localities);
}
