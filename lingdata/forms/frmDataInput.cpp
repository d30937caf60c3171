#include "lingdata/forms/frmDataInput.h"

#include "lingdata/LinguisticFile.h"
#include "lingdata/LocalityMismatch.h"
#include "lingdata/forms/WordEntryDelegate.h"
#include "platform/FileName.h"
#include "platform/forms/ThemeColors.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"
#include "ui_frmDataInput.h"

#include <QLabel>
#include <QSignalBlocker>

#include <utility>

frmDataInput::frmDataInput(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmDataInput>()), m_varn(varn), m_table(m_editor, varn),
      m_kindDelegate(new WordDelegate(varn, this)),
      m_delegate(new WordEntryDelegate(varn, *m_kindDelegate, this)), m_progress(new QLabel(this)),
      m_warning(new QLabel(this))
{
    m_ui->setupUi(this);
    m_ui->fraCheck->hide();
    showAsWarning(*m_warning);
    showAsWarning(*m_ui->lblFault);
    for (QLabel* label : {m_progress, m_warning}) {
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(8, 0, 8, 0);
    }
    statusBar()->addWidget(m_progress);
    statusBar()->addWidget(m_warning, 1);
    setUpTable();
    connectMenus();
    connectEditMenu();
    connectKinds();
    connectTexts();
}

frmDataInput::~frmDataInput()
{
    m_ui->tblWords->setModel(nullptr); // a cell that is being edited writes nothing into what is no more
}

void frmDataInput::setUpTable()
{
    constexpr int RowPadding = 8;
    constexpr int CharactersOfWord = 14;

    WordTableView& words = *m_ui->tblWords;
    words.setModel(&m_table);
    words.setItemDelegate(m_delegate);
    words.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
    words.horizontalHeader()->setMinimumSectionSize(fontMetrics().averageCharWidth() * CharactersOfWord);
    words.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    connect(words.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { run([this] { moved(); }); });
    connect(&m_table, &QAbstractItemModel::dataChanged, this, [this] { run([this] { moved(); }); });
    connect(m_delegate, &WordEntryDelegate::typed, this,
            [this](const QString& text) { run([&] { drawWordShown(text); }); });
    connect(m_delegate, &WordEntryDelegate::closeEditor, this, [this] { run([this] { moved(); }); });
    connect(m_delegate, &WordEntryDelegate::left, &words, &WordTableView::goByRows);
    handle(&words, &WordTableView::deletePressed, &frmDataInput::emptySelected);
    connect(m_ui->picMap, &LocalityView::localityClicked, this, [this](int locality) {
        m_ui->tblWords->goTo(locality, 1, QAbstractItemView::PositionAtCenter);
        m_ui->tblWords->setFocus();
    });
}

void frmDataInput::connectMenus()
{
    handle(m_ui->mnuOpen, &QAction::triggered, &frmDataInput::mnuOpen_Click);
    handle(m_ui->mnuSave, &QAction::triggered, &frmDataInput::mnuSave_Click);
    handle(m_ui->mnuInitialize, &QAction::triggered, &frmDataInput::mnuInitialize_Click);
    handle(m_ui->mnuToMain, &QAction::triggered, &frmDataInput::mnuToMain_Click);
    handle(m_ui->mnuToAccumulate, &QAction::triggered, &frmDataInput::mnuToAccumulate_Click);
}

void frmDataInput::connectEditMenu()
{
    m_ui->mnuUndo->setShortcut(QStringLiteral("Ctrl+Z"));
    m_ui->mnuRedo->setShortcuts({QStringLiteral("Ctrl+Y"), QStringLiteral("Ctrl+Shift+Z")});
    handle(m_ui->mnuUndo, &QAction::triggered, &frmDataInput::mnuUndo_Click);
    handle(m_ui->mnuRedo, &QAction::triggered, &frmDataInput::mnuRedo_Click);
    handle(m_ui->mnuCut, &QAction::triggered, &frmDataInput::mnuCut_Click);
    handle(m_ui->mnuCopy, &QAction::triggered, &frmDataInput::mnuCopy_Click);
    handle(m_ui->mnuPaste, &QAction::triggered, &frmDataInput::mnuPaste_Click);
    handle(m_ui->mnuGoTo, &QAction::triggered, &frmDataInput::mnuGoTo_Click);
    handle(m_ui->mnuAddLocalities, &QAction::triggered, &frmDataInput::mnuAddLocalities_Click);
}

void frmDataInput::connectKinds()
{
    handle(m_ui->cmdKindToData, &QPushButton::clicked, &frmDataInput::cmdKindToData_Click);
    handle(m_ui->cmdDataToKind, &QPushButton::clicked, &frmDataInput::cmdDataToKind_Click);
    handle(m_ui->cmdSetKind, &QPushButton::clicked, &frmDataInput::cmdSetKind_Click);
    handle(m_ui->cmdDelKind, &QPushButton::clicked, &frmDataInput::cmdDelKind_Click);
    handle(m_ui->cmdCheckCode, &QPushButton::clicked, &frmDataInput::cmdCheckCode_Click);
    connect(m_ui->txtKind, &QLineEdit::textEdited, this,
            [this](const QString& kind) { run([&] { drawWordShown(kind); }); });
    handle(m_ui->txtKind, &QLineEdit::returnPressed, &frmDataInput::cmdSetKind_Click);
    handle(m_ui->lstKind, &QListWidget::itemDoubleClicked, &frmDataInput::cmdKindToData_Click);
    m_ui->lstKind->setItemDelegate(m_kindDelegate);
    handle(m_ui->lstKind, &KindListView::kindEntered, &frmDataInput::cmdKindToData_Click);
    handle(m_ui->lstKind, &KindListView::kindRemoved, &frmDataInput::cmdDelKind_Click);

    connect(m_ui->lstCheck, &QListWidget::currentRowChanged, this, &frmDataInput::goToFault);
    connect(m_ui->lstCheck, &QListWidget::itemClicked, this,
            [this] { goToFault(m_ui->lstCheck->currentRow()); });
    handle(m_ui->cmdCloseCheck, &QToolButton::clicked, &frmDataInput::hideFaults);
}

void frmDataInput::connectTexts()
{
    connect(m_ui->txtHanrei, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_editor.setCaption(text);
        showState();
    });
    connect(m_ui->txtComment, &QPlainTextEdit::textChanged, this, [this] {
        m_editor.setComment(m_ui->txtComment->toPlainText());
        showState();
    });
}

void frmDataInput::Form_Load()
{
    m_delegate->forget();
    m_kindDelegate->forget();
    run([this] { m_ui->picMap->setMap(m_varn); });
    const bool otherMap = m_mapName != m_varn.VarnMapName;
    const bool untouched = m_fileName.isEmpty() && !m_editor.isUnsaved();
    if (otherMap && m_editor.isUnsaved() &&
        !dialogs().confirmLoss(QStringLiteral("The data of map %1 is not saved. Begin a new item of map %2 ?")
                                   .arg(m_mapName.mid(1), m_varn.VarnMapName.mid(1)),
                               QStringLiteral("Input Linguistic Data"))) {
        refresh();
        return;
    }
    if (otherMap || untouched) {
        run([this] { newItem(); });
    }
    m_ui->tblWords->setFocus();
    refresh();
}

void frmDataInput::newItem()
{
    m_mapName = m_varn.VarnMapName;
    showItem(ItemEditor(m_varn.NLocality), QString());
}

void frmDataInput::showItem(ItemEditor item, const QString& itemPath)
{
    hideFaults();
    m_table.replaceItem(std::move(item));
    m_fileName = fileNameOf(itemPath);
    m_ui->txtFileName->setText(withoutEnding(m_fileName, ItemFiles.ending));
    showTexts();
    m_ui->txtKind->clear();
    showKinds();
    m_ui->tblWords->goTo(1, 1);
    m_ui->tblWords->setFocus();
    moved();
}

// What is shown

void frmDataInput::moved()
{
    const WordTableView& words = *m_ui->tblWords;
    const bool anyCell = words.currentIndex().isValid();
    m_ui->picMap->highlight(words.locality());
    m_ui->lblCell->setText(
        anyCell ? QStringLiteral("Locality %1, word %2")
                      .arg(localityTitle(m_varn, words.locality()), QString::number(words.column()))
                : QString());
    drawWordShown(words.currentIndex().data().toString());
}

void frmDataInput::drawWordShown(const QString& text)
{
    const QString word = typedCell(text).value_or(QString());
    const auto fault = findCodeFault(word);
    m_ui->lblFault->setText(fault ? faultText(*fault) : QString());
    m_ui->picWord->setWord(drawWord(textParts(m_varn), word));
}

void frmDataInput::refresh()
{
    if (m_ui->fraCheck->isVisible()) {
        showFaults();
    }
    showState();
}

void frmDataInput::showState()
{
    showTitle({QStringLiteral("VARN Input Linguistic Data"), m_varn.VarnMapName.mid(1), m_fileName},
              m_editor.isUnsaved());
    m_progress->setText(QStringLiteral("%1 of %2 localities answered, %3 word forms")
                            .arg(QString::number(m_editor.answeredLocalities()),
                                 QString::number(m_editor.localities()),
                                 QString::number(m_editor.wordForms())));
    m_ui->mnuUndo->setEnabled(m_editor.canUndo());
    m_ui->mnuRedo->setEnabled(m_editor.canRedo());
    m_ui->mnuAddLocalities->setEnabled(m_editor.localities() < m_varn.NLocality);
    m_warning->setText(localityMismatch(m_editor.localities(), m_varn.NLocality));
}
