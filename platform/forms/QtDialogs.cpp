#include "platform/forms/QtDialogs.h"

#include "platform/DriveC.h"
#include "platform/Numbers.h"
#include "platform/forms/QtPrinterDevice.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QFontInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QRegularExpression>

#include <algorithm>

namespace {

QString displayed(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

/// Makes `box` wide enough for its title and for `more`, so that a path stays on its line.
void widenToText(QMessageBox& box, const QString& more)
{
    constexpr int WindowButtons = 140;
    constexpr int IconAndMargins = 90;
    constexpr int WidestBox = 900;
    const QFontMetrics metrics = box.fontMetrics();
    const int width = std::max(metrics.horizontalAdvance(box.windowTitle()) + WindowButtons,
                               metrics.size(0, more).width() + IconAndMargins);
    if (auto* layout = qobject_cast<QGridLayout*>(box.layout())) {
        layout->addItem(new QSpacerItem(std::min(width, WidestBox), 0), layout->rowCount(), 0, 1,
                        layout->columnCount());
    }
}

/// Shows a message box and returns the button that closed it.
int showBox(QMessageBox::Icon icon, const QString& text, const QString& more, const QString& title,
            QMessageBox::StandardButtons buttons,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton)
{
    QMessageBox box(icon, title, displayed(text), buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(displayed(more));
    box.setDefaultButton(defaultButton);
    widenToText(box, displayed(more));
    return box.exec();
}

/// The file that would be replaced by one of the name `path`, whose letter case may differ; empty where there
/// is none.
QString replacedFile(const QString& path)
{
    const DriveC drive;
    const QString existing = drive.hostPath(drive.varnPath(path));
    return QFileInfo::exists(existing) ? existing : QString();
}

/// Lets the name of a new file end in what the filter chosen asks for.
void followFilter(QFileDialog& dialog)
{
    const auto useSuffix = [&dialog](const QString& nameFilter) {
        dialog.setDefaultSuffix(
            QRegularExpression(QStringLiteral("\\*\\.(\\w+)")).match(nameFilter).captured(1));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, useSuffix);
    useSuffix(dialog.selectedNameFilter());
}

} // namespace

QStringList nameFilters(const QString& filter)
{
    QStringList filters;
    const QStringList parts = filter.split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString description = parts[i].left(parts[i].indexOf(QLatin1Char('('))).trimmed();
        const QString patterns = QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
        filters << QStringLiteral("%1 (%2)").arg(description, patterns);
    }
    return filters;
}

void QtDialogs::message(const QString& text, const QString& title)
{
    showBox(QMessageBox::Information, text, {}, title, QMessageBox::Ok);
}

void QtDialogs::error(const QString& title, const QString& detail)
{
    showBox(QMessageBox::Critical, title, detail, QStringLiteral("VARN"), QMessageBox::Ok);
}

bool QtDialogs::askYesNo(const QString& text, const QString& title)
{
    return showBox(QMessageBox::Question, text, {}, title, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

bool QtDialogs::confirmLoss(const QString& text, const QString& title)
{
    return showBox(QMessageBox::Question, text, {}, title, QMessageBox::Yes | QMessageBox::No,
                   QMessageBox::No) == QMessageBox::Yes;
}

SaveChoice QtDialogs::askSaveChoice(const QString& text, const QString& title)
{
    switch (showBox(QMessageBox::Question, text, {}, title,
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save)) {
    case QMessageBox::Save:
        return SaveChoice::Save;
    case QMessageBox::Discard:
        return SaveChoice::Discard;
    default:
        return SaveChoice::Cancel;
    }
}

bool QtDialogs::askOkCancel(const QString& text, const QString& title)
{
    return showBox(QMessageBox::Question, text, {}, title, QMessageBox::Ok | QMessageBox::Cancel) ==
           QMessageBox::Ok;
}

std::optional<QString> QtDialogs::input(const QString& prompt, const QString& title, const QString& initial)
{
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(title);
    dialog.setLabelText(displayed(prompt));
    dialog.setTextValue(initial);
    dialog.resize(dialog.sizeHint().expandedTo({360, 0}));
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog.textValue();
}

std::optional<QString> QtDialogs::openFile(const QString& title, const QString& folder, const QString& filter)
{
    QFileDialog dialog(QApplication::activeWindow(), title, folder);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setViewMode(QFileDialog::List);
    dialog.setNameFilters(nameFilters(filter));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst();
}

std::optional<QString> QtDialogs::chooseFolder(const QString& title, const QString& folder)
{
    QFileDialog dialog(QApplication::activeWindow(), title, folder);
    dialog.setFileMode(QFileDialog::Directory);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst();
}

std::optional<QString> QtDialogs::saveFile(const QString& title, const QString& folder, const QString& filter,
                                           const QString& initial)
{
    QFileDialog dialog(QApplication::activeWindow(), title, folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(nameFilters(filter));
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // it would not see a name in other letter case
    followFilter(dialog);
    dialog.selectFile(initial);
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString file = dialog.selectedFiles().constFirst();
        const QString replaced = replacedFile(file);
        if (replaced.isEmpty()) {
            return file;
        }
        if (confirmLoss(QStringLiteral("%1 already exists.\nDo you want to replace it?")
                            .arg(QFileInfo(replaced).fileName()),
                        title)) {
            return replaced;
        }
    }
    return std::nullopt;
}

std::unique_ptr<PrinterDevice> QtDialogs::choosePrinter(const PageLayout& layout)
{
    return QtPrinterDevice::choose(layout);
}

std::optional<TextFont> QtDialogs::chooseFont(const TextFont& initial)
{
    QFont font(initial.name, initial.size, initial.bold ? QFont::Bold : QFont::Normal, initial.italic);
    // A font that is not installed is shown as the one that stands in for it.
    const QString shownName = QFontInfo(font).family();
    font.setFamily(shownName);
    QFontDialog dialog(font, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    font = dialog.selectedFont();
    return TextFont{font.family() == shownName ? initial.name : font.family(), toInteger(font.pointSizeF()),
                    font.bold(), font.italic()};
}
