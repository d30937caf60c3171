#include "lingdata/frmDataInput.h"

#include "lingdata/EnteredItem.h"
#include "render/WordDelegate.h"
#include "shell/VarnModule.h"
#include "ui_frmDataInput.h"

#include <QCloseEvent>
#include <QLabel>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>

frmDataInput::frmDataInput(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmDataInput>()), m_varn(varn),
      m_delegate(new WordDelegate(varn, this)), m_progress(new QLabel(this)), m_warning(new QLabel(this))
{
    m_ui->setupUi(this);
    m_ui->fraCheck->hide();
    m_ui->picWord->setSurface(m_word, SurfaceView::Fit::NaturalSize);
    m_warning->setStyleSheet(QStringLiteral("color: #b00000"));
    for (QLabel* label : {m_progress, m_warning}) {
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(8, 0, 8, 0);
    }
    statusBar()->addWidget(m_progress);
    statusBar()->addWidget(m_warning, 1);
    setUpTable();
    connectMenus();
    connectKinds();
    connectTexts();
}

frmDataInput::~frmDataInput() = default;

void frmDataInput::setUpTable()
{
    constexpr int RowPadding = 8;
    constexpr int CharactersOfWord = 18;

    WordTableView& words = *m_ui->tblWords;
    words.setModel(&m_table);
    words.setItemDelegate(m_delegate);
    words.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
    words.horizontalHeader()->setDefaultSectionSize(fontMetrics().averageCharWidth() * CharactersOfWord);
    connect(words.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { run([this] { moved(); }); });
    connect(&m_table, &QAbstractItemModel::dataChanged, this, [this] { run([this] { moved(); }); });
    connect(m_delegate, &WordDelegate::typed, this,
            [this](const QString& word) { run([&] { drawWordShown(word); }); });
    connect(m_delegate, &WordDelegate::left, &words, &WordTableView::goByRows);
    connect(m_ui->picMap, &LocalityView::localityClicked, this, [this](int locality) {
        m_ui->tblWords->goTo(locality, 1);
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

void frmDataInput::connectKinds()
{
    handle(m_ui->cmdKindToData, &QPushButton::clicked, &frmDataInput::cmdKindToData_Click);
    handle(m_ui->cmdDataToKind, &QPushButton::clicked, &frmDataInput::cmdDataToKind_Click);
    handle(m_ui->cmdSetKind, &QPushButton::clicked, &frmDataInput::cmdSetKind_Click);
    handle(m_ui->cmdDelKind, &QPushButton::clicked, &frmDataInput::cmdDelKind_Click);
    handle(m_ui->cmdCheckCode, &QPushButton::clicked, &frmDataInput::cmdCheckCode_Click);
    handle(m_ui->txtKind, &QLineEdit::returnPressed, &frmDataInput::cmdSetKind_Click);
    handle(m_ui->lstKind, &QListWidget::itemDoubleClicked, &frmDataInput::cmdKindToData_Click);
    m_ui->lstKind->setItemDelegate(m_delegate);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        handle(new QShortcut(key, m_ui->lstKind, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
               &frmDataInput::cmdKindToData_Click);
    }
    handle(new QShortcut(Qt::Key_Delete, m_ui->lstKind, nullptr, nullptr, Qt::WidgetShortcut),
           &QShortcut::activated, &frmDataInput::cmdDelKind_Click);

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
    run([this] { m_ui->picMap->setMap(m_varn); });
    const bool otherMap = m_mapName != m_varn.VarnMapName;
    const bool untouched = m_fileName.isEmpty() && !m_editor.isUnsaved();
    if (otherMap && m_editor.isUnsaved() &&
        !dialogs().askYesNo(QStringLiteral("The data of map %1 is not saved. Begin a new item of map %2 ?")
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
    constexpr qsizetype EndingLength = 4;

    hideFaults();
    m_table.replaceItem(std::move(item));
    m_fileName = itemPath.mid(itemPath.lastIndexOf(QLatin1Char('\\')) + 1);
    m_ui->txtFileName->setText(m_fileName.endsWith(QLatin1String(".dbs"), Qt::CaseInsensitive)
                                   ? m_fileName.chopped(EndingLength)
                                   : m_fileName);
    m_ui->txtHanrei->setText(m_editor.caption());
    const QSignalBlocker silent(m_ui->txtComment);
    m_ui->txtComment->setPlainText(m_editor.comment());
    m_ui->txtKind->clear();
    showKinds();
    m_ui->tblWords->goTo(1, 1);
    m_ui->tblWords->setFocus();
    moved();
}

// Files

bool frmDataInput::mayOpen()
{
    const QString text =
        QStringLiteral("Data proccessed will be lost if Linguistic File is opened.");
    const QString title = QStringLiteral("Open Linguistic Data File");
    if (m_editor.isUnsaved()) {
        return dialogs().askYesNo(text, title);
    }
    dialogs().message(text, title);
    return true;
}

void frmDataInput::mnuOpen_Click()
{
    m_ui->tblWords->commitEdit();
    if (mayOpen()) {
        LoadWordData();
    }
}

void frmDataInput::LoadWordData()
{
    const auto file = dialogs().openFile(QStringLiteral("Open Linguistic Data File"),
                                         m_varn.Drive.hostPath(m_varn.dataFolder()),
                                         QStringLiteral("DBS Files (*.dbs)|*.dbs"));
    if (!file) {
        return;
    }
    const QString path = m_varn.Drive.varnPath(*file);
    ItemEditor item = openItem(m_varn, path);
    m_mapName = m_varn.VarnMapName;
    showItem(std::move(item), path);
}

void frmDataInput::mnuSave_Click()
{
    m_ui->tblWords->commitEdit();
    SaveWord();
}

void frmDataInput::SaveWord()
{
    const QString path = enteredItemPath(m_varn, m_ui->txtFileName->text());
    if (path.isEmpty()) {
        dialogs().message(QStringLiteral("Input File Name "),
                          QStringLiteral("Input File Name of Linguistic Data"));
        m_ui->txtFileName->setFocus();
        return;
    }
    if (fileExists(m_varn.Drive, path) && !dialogs().askYesNo(QStringLiteral("File Exist. Overwrite O.K.?"),
                                                              QStringLiteral("Re-input of File Name"))) {
        m_ui->txtFileName->setFocus();
        m_ui->txtFileName->selectAll();
        return;
    }
    saveItem(m_varn, path, m_editor);
    m_fileName = path.mid(path.lastIndexOf(QLatin1Char('\\')) + 1);
    statusBar()->showMessage(QStringLiteral("Saved as %1").arg(path), 5000);
}

void frmDataInput::mnuInitialize_Click()
{
    m_ui->tblWords->commitEdit();
    const QString text = QStringLiteral("Data, kinds, captions and comments will be emptied. Initialize O.K.?");
    const QString unsaved = QStringLiteral("Linguistic data is not saved.\r\n");
    if (dialogs().askYesNo(m_editor.isUnsaved() ? unsaved + text : text, QStringLiteral("Initialize"))) {
        newItem();
    }
}

bool frmDataInput::mayLeave()
{
    m_ui->tblWords->commitEdit();
    return !m_editor.isUnsaved() ||
           dialogs().askYesNo(QStringLiteral("Linguistic data is not saved. Leave without saving O.K.?"),
                              QStringLiteral("Input Linguistic Data"));
}

void frmDataInput::mnuToMain_Click()
{
    if (mayLeave()) {
        Q_EMIT toMain();
    }
}

void frmDataInput::mnuToAccumulate_Click()
{
    if (mayLeave()) {
        Q_EMIT toAccumulateData();
    }
}

void frmDataInput::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayLeave());
}

// Kinds

void frmDataInput::cmdKindToData_Click()
{
    const QListWidgetItem* kind = m_ui->lstKind->currentItem();
    WordTableView& words = *m_ui->tblWords;
    words.commitEdit();
    if (kind != nullptr && words.currentIndex().isValid()) {
        m_table.setData(words.currentIndex(), kind->text(), Qt::EditRole);
        words.goToNextLocality();
    }
}

void frmDataInput::cmdDataToKind_Click()
{
    m_ui->tblWords->commitEdit();
    m_editor.collectKinds();
    showKinds();
}

void frmDataInput::cmdSetKind_Click()
{
    const QString kind = m_ui->txtKind->text();
    m_ui->txtKind->setFocus();
    if (!kind.trimmed().isEmpty()) {
        m_editor.addKind(kind);
        showKinds();
        m_ui->lstKind->setCurrentRow(static_cast<int>(m_editor.kinds().indexOf(kind)));
        m_ui->txtKind->selectAll();
    }
}

void frmDataInput::cmdDelKind_Click()
{
    const int row = m_ui->lstKind->currentRow();
    if (row >= 0) {
        m_editor.removeKind(row);
        showKinds();
    }
}

void frmDataInput::showKinds()
{
    const int row = std::min(m_ui->lstKind->currentRow(), static_cast<int>(m_editor.kinds().size()) - 1);
    m_ui->lstKind->clear();
    m_ui->lstKind->addItems(m_editor.kinds());
    m_ui->lstKind->setCurrentRow(row);
}

// Codes

void frmDataInput::cmdCheckCode_Click()
{
    m_ui->tblWords->commitEdit();
    showFaults();
    if (m_faults.empty()) {
        hideFaults();
        dialogs().message(QStringLiteral("All codes are right."), QStringLiteral("Check Code"));
        return;
    }
    m_ui->fraCheck->show();
    m_ui->lstCheck->setCurrentRow(0);
    m_ui->lstCheck->setFocus();
}

void frmDataInput::showFaults()
{
    m_faults = m_editor.checkCodes();
    const QSignalBlocker silent(m_ui->lstCheck);
    const int row = std::min(m_ui->lstCheck->currentRow(), static_cast<int>(m_faults.size()) - 1);
    m_ui->lstCheck->clear();
    for (const FaultyWord& faulty : m_faults) {
        const QString fault = faulty.fault.cutShort ? QStringLiteral("is cut short")
                                                    : QStringLiteral("is in no code");
        m_ui->lstCheck->addItem(QStringLiteral("Locality %1, word %2:  %3    (%4 %5)")
                                    .arg(QString::number(faulty.locality), QString::number(faulty.column),
                                         faulty.word, faulty.fault.code, fault));
    }
    m_ui->lstCheck->setCurrentRow(row);
    m_ui->lblCheck->setText(QStringLiteral("Word forms with illegal codes: %1").arg(m_faults.size()));
}

void frmDataInput::goToFault(int index)
{
    if (index >= 0 && index < static_cast<int>(m_faults.size())) {
        const FaultyWord& faulty = m_faults[static_cast<std::size_t>(index)];
        m_ui->tblWords->goTo(faulty.locality, faulty.column);
    }
}

void frmDataInput::hideFaults()
{
    m_ui->fraCheck->hide();
}

// What is shown

void frmDataInput::moved()
{
    const WordTableView& words = *m_ui->tblWords;
    const bool anyCell = words.currentIndex().isValid();
    m_ui->picMap->highlight(words.locality());
    m_ui->lblCell->setText(anyCell ? QStringLiteral("Locality %1, word %2")
                                         .arg(QString::number(words.locality()),
                                              QString::number(words.column()))
                                   : QString());
    drawWordShown(words.currentIndex().data().toString());
}

void frmDataInput::drawWordShown(const QString& word)
{
    const DrawnWord drawn = drawWord(m_varn, word);
    (void)drawn;
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
    QStringList title = {QStringLiteral("VARN Input Linguistic Data"), m_varn.VarnMapName.mid(1), m_fileName};
    title.removeAll(QString());
    setWindowTitle(title.join(QStringLiteral(" - ")) + QStringLiteral("[*]"));
    setWindowModified(m_editor.isUnsaved());
    m_progress->setText(QStringLiteral("%1 of %2 localities answered, %3 word forms")
                            .arg(QString::number(m_editor.answeredLocalities()),
                                 QString::number(m_editor.localities()),
                                 QString::number(m_editor.wordForms())));
    m_warning->setText(m_editor.localities() == m_varn.NLocality
                           ? QString()
                           : QStringLiteral("The item has %1 localities, the map has %2.")
                                 .arg(QString::number(m_editor.localities()),
                                      QString::number(m_varn.NLocality)));
}
