#include "analysis/forms/StringsFrame.h"

#include "analysis/AnalysisFileName.h"
#include "analysis/CumulativeFile.h"
#include "platform/forms/VarnForm.h"
#include "render/forms/WordDelegate.h"
#include "shell/VarnModule.h"
#include "ui_StringsFrame.h"

#include <QSignalBlocker>

namespace {

/// The word forms whose strings a file of identifying strings cannot hold; empty where it holds all.
QString wordformsWithoutLine(const CumulativeData& data)
{
    constexpr int MostStrings = 10;
    QStringList names;
    for (int k = 1; k <= data.NumWordforms; ++k) {
        const int strings = data.NumSpecifyChars(k);
        if (strings < 1 || strings > MostStrings) {
            names << QStringLiteral("%1 %2 (%3 strings)")
                         .arg(QString::number(k), data.WordformName(k), QString::number(strings));
        }
    }
    return names.join(QLatin1Char('\n'));
}

} // namespace

StringsFrame::StringsFrame(QWidget* parent) : QGroupBox(parent), m_ui(std::make_unique<Ui::StringsFrame>())
{
    m_ui->setupUi(this);
}

StringsFrame::~StringsFrame() = default;

void StringsFrame::edit(VarnModule& varn, Dialogs& dialogs, VarnForm& form)
{
    m_varn = &varn;
    m_dialogs = &dialogs;
    m_editor.emplace(varn);
    m_ui->LstWord->setItemDelegate(new WordDelegate(varn, m_ui->LstWord));
    connectButtons(form);
}

void StringsFrame::connectButtons(VarnForm& form)
{
    const auto handle = [&](auto* sender, auto signal, void (StringsFrame::*handler)()) {
        connect(sender, signal, this,
                [this, &form, handler] { form.run([this, handler] { (this->*handler)(); }); });
    };
    handle(m_ui->cmdWordSelect, &QPushButton::clicked, &StringsFrame::cmdWordSelect_Click);
    handle(m_ui->cmdWordRewrite, &QPushButton::clicked, &StringsFrame::cmdWordRewrite_Click);
    handle(m_ui->cmdWordDelete, &QPushButton::clicked, &StringsFrame::cmdWordDelete_Click);
    handle(m_ui->cmdWordReset, &QPushButton::clicked, &StringsFrame::cmdWordReset_Click);
    handle(m_ui->cmdWordNext, &QPushButton::clicked, &StringsFrame::cmdWordNext_Click);
    handle(m_ui->cmdWordBefore, &QPushButton::clicked, &StringsFrame::cmdWordBefore_Click);
    handle(m_ui->cmdWordSave, &QPushButton::clicked, &StringsFrame::SaveSetData);
    handle(m_ui->LstWord, &QListWidget::currentRowChanged, &StringsFrame::LstWord_Click);
}

// What is shown

void StringsFrame::showWordform()
{
    m_editor->start();
    SetTotalWordList();
    showString();
}

void StringsFrame::SetTotalWordList()
{
    const QStringList strings = m_editor->strings();
    const QSignalBlocker blocker(m_ui->LstWord);
    m_ui->LstWord->clear();
    m_ui->LstWord->addItems(strings);
    m_ui->LstWord->setCurrentRow(m_editor->current() - 1);
    m_ui->lblStrings->setText(
        QStringLiteral("Strings of wordform %1: %2").arg(m_varn->CurrentWordform).arg(strings.size()));
}

void StringsFrame::showString()
{
    const QSignalBlocker blocker(*m_ui->LstWord);
    m_ui->LstWord->setCurrentRow(m_editor->current() - 1);
    m_ui->txtInputWord->setText(m_editor->text());
}

void StringsFrame::showFile()
{
    m_ui->txtSetFileName->setText(analysisFileStem(m_varn->SpecifyFileName, StringFiles));
}

void StringsFrame::enter(const QString& text)
{
    m_ui->txtInputWord->setText(text);
    m_ui->txtInputWord->setFocus();
}

void StringsFrame::refresh()
{
    const bool hasWordforms = m_varn->NumWordforms > 0;
    const int strings = m_ui->LstWord->count();
    for (QWidget* control :
         std::initializer_list<QWidget*>{m_ui->txtInputWord, m_ui->cmdWordSelect, m_ui->cmdWordSave}) {
        control->setEnabled(hasWordforms);
    }
    for (QWidget* button : {m_ui->cmdWordRewrite, m_ui->cmdWordDelete, m_ui->cmdWordReset}) {
        button->setEnabled(hasWordforms && strings > 0);
    }
    m_ui->cmdWordBefore->setEnabled(m_editor->current() > 1);
    m_ui->cmdWordNext->setEnabled(m_editor->current() < strings);
}

// What the buttons do

bool StringsFrame::mayRegister(const QString& text)
{
    return !text.isEmpty() ||
           m_dialogs->askYesNo(QStringLiteral("An empty string is found in every answer. Register it?"),
                               QStringLiteral("Accumulate Data"));
}

void StringsFrame::cmdWordSelect_Click()
{
    const QString text = m_ui->txtInputWord->text();
    if (mayRegister(text)) {
        m_editor->add(text);
        SetTotalWordList();
    }
}

void StringsFrame::cmdWordRewrite_Click()
{
    const QString text = m_ui->txtInputWord->text();
    if (mayRegister(text)) {
        m_editor->rewrite(text);
        SetTotalWordList();
    }
}

void StringsFrame::cmdWordDelete_Click()
{
    m_editor->remove();
    SetTotalWordList();
    showString();
}

void StringsFrame::cmdWordReset_Click()
{
    m_editor->reset();
    SetTotalWordList();
    showString();
}

void StringsFrame::cmdWordNext_Click()
{
    m_editor->next();
    showString();
}

void StringsFrame::cmdWordBefore_Click()
{
    m_editor->previous();
    showString();
}

void StringsFrame::LstWord_Click()
{
    m_editor->choose(m_ui->LstWord->currentRow() + 1);
    showString();
}

void StringsFrame::SaveSetData()
{
    const QString name = m_ui->txtSetFileName->text().trimmed();
    const QString title = QStringLiteral("Save Specify Char File");
    if (analysisFileStem(name, StringFiles).isEmpty()) {
        m_dialogs->message(QStringLiteral("Input Name of Specify Characters."), title);
        m_ui->txtSetFileName->setFocus();
        return;
    }
    const QString path = analysisFilePath(*m_varn, name, StringFiles);
    const bool isOwn = path.compare(m_varn->SpecifyFileName, Qt::CaseInsensitive) == 0;
    if (!isOwn && !askToSave(*m_dialogs, m_varn->Drive, path, title)) {
        return;
    }
    ::SaveSetData(m_varn->Drive, path, *m_varn);
    showFile();
    tellWordformsWithoutLine(title);
}

void StringsFrame::tellWordformsWithoutLine(const QString& title)
{
    if (const QString left = wordformsWithoutLine(*m_varn); !left.isEmpty()) {
        m_dialogs->message(
            QStringLiteral("The file holds word forms with 1 to 10 strings. It cannot be opened "
                           "as long as one has none or more:\n\n") +
                left,
            title);
    }
}
