#include "atlas/forms/AtlasRecordsPane.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "atlas/forms/MarkedWordsPane.h"
#include "atlas/forms/RecordCommands.h"
#include "atlas/forms/RecordsModel.h"
#include "atlas/forms/RecordsTable.h"
#include "atlas/forms/SymbolPopup.h"
#include "shell/VarnModule.h"

#include <QAction>
#include <QLabel>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

AtlasRecordsPane::AtlasRecordsPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection,
                                   Dialogs& dialogs)
    : m_document(document), m_selection(selection), m_model(new RecordsModel(varn, document, this)),
      m_table(new RecordsTable(varn, *m_model, this)), m_note(new QLabel(this)),
      m_words(new MarkedWordsPane(varn, *m_model, this)), m_popup(new SymbolPopup(varn, this)),
      m_commands(new RecordCommands({varn, document, selection, dialogs, *m_model, *m_table, *m_words}, this))
{
    addWidgets();
    connectWidgets();
    showRecords();
}

/// What is open is given up; there is nobody to tell any more.
AtlasRecordsPane::~AtlasRecordsPane()
{
    for (QObject* part : std::initializer_list<QObject*>{m_model, m_table, m_words, m_popup}) {
        part->disconnect(this);
    }
}

QLayout* AtlasRecordsPane::tools()
{
    auto* row = new QHBoxLayout; // the pane's layout owns it
    row->setSpacing(0);
    for (const char* name : {"mnuNewRecord", "mnuDeleteRecord", "mnuSameSymbol", "mnuMakeSymbols"}) {
        auto* button = new QToolButton(this);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setDefaultAction(findChild<QAction*>(QLatin1String(name)));
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

void AtlasRecordsPane::addWidgets()
{
    m_note->setObjectName(QStringLiteral("lblRecordsNote"));
    m_note->setWordWrap(true);
    m_note->setMargin(6);
    m_note->setTextFormat(Qt::PlainText);
    m_table->addActions(actions());
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* lists = new QSplitter(Qt::Vertical);
    lists->addWidget(m_table);
    lists->addWidget(m_words);
    lists->setStretchFactor(0, 3);
    lists->setStretchFactor(1, 1);
    lists->setSizes({300, 100});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(tools());
    layout->addWidget(m_note);
    layout->addWidget(lists, 1);
}

void AtlasRecordsPane::connectWidgets()
{
    connect(m_model, &RecordsModel::shownChanged, this, &AtlasRecordsPane::showRecords);
    connect(m_model, &RecordsModel::moved, m_table, &RecordsTable::chooseRecords);
    connect(m_table, &RecordsTable::chosenChanged, this, [this] {
        m_selection.setRecords(m_table->chosenRecords());
        m_commands->refresh();
    });
    connect(&m_selection, &AtlasSelection::recordsChanged, this,
            [this] { m_table->chooseRecords(m_selection.records()); });
    connect(m_words, &MarkedWordsPane::localitiesChosen, this, [this](const std::set<int>& localities) {
        m_selection.setLocalities(localities);
        m_commands->refresh();
    });
    connect(m_words, &MarkedWordsPane::recordsWanted, m_commands, &RecordCommands::newRecordsOfWords);
    connect(m_table, &RecordsTable::symbolWanted, this, &AtlasRecordsPane::openSymbols);
    connect(m_popup, &SymbolPopup::chosen, this, &AtlasRecordsPane::previewStyle);
    connect(m_popup, &SymbolPopup::accepted, this, &AtlasRecordsPane::takeStyle);
    connect(m_popup, &SymbolPopup::rejected, this, &AtlasRecordsPane::giveUpStyle);
}

void AtlasRecordsPane::showRecords()
{
    m_words->showMarks();
    m_note->setText(note());
    m_note->setVisible(!m_note->text().isEmpty());
    m_selection.setRecords(m_table->chosenRecords());
    m_commands->refresh();
}

QString AtlasRecordsPane::note() const
{
    const AtlasPage& page = m_document.page();
    if (!m_document.hasPage()) {
        return QStringLiteral("Choose an item to see its kinds and symbols.");
    }
    if (!page.symbolTrouble.isEmpty()) {
        return QStringLiteral("The symbol file cannot be read. It is left as it is: %1")
            .arg(page.symbolTrouble);
    }
    if (page.symbols.NHanrei == 0) {
        return QStringLiteral("No symbols yet. Type a kind, or let Make Symbols give each word form one.");
    }
    if (page.symbols.NHanrei == MostRecords) {
        return QStringLiteral("A symbol file holds %1 records, no more.").arg(MostRecords);
    }
    return {};
}

void AtlasRecordsPane::openSymbols()
{
    m_styledNumbers = m_table->chosenRecords();
    if (m_model->isEditable() && !m_styledNumbers.empty()) {
        const int current = m_table->currentIndex().row() + 1;
        const int first = m_styledNumbers.contains(current) ? current : *m_styledNumbers.begin();
        m_styled = m_document.page().symbols;
        m_popup->openWith(m_styled->Hanko(first), m_table->symbolOnScreen());
    }
}

void AtlasRecordsPane::previewStyle(StyleField field, qint16 value)
{
    if (m_styled) {
        m_styled = withStyle(*m_styled, m_styledNumbers, field, value);
        m_document.previewSymbols(*m_styled);
    }
}

void AtlasRecordsPane::takeStyle()
{
    if (m_styled) {
        const SymbolRecords styled = *m_styled;
        m_styled.reset();
        m_document.setSymbols(styled, QStringLiteral("Change Symbol"));
    }
}

void AtlasRecordsPane::giveUpStyle()
{
    m_styled.reset();
    m_document.endPreview();
}
