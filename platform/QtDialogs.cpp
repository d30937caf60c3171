#include "platform/QtDialogs.h"

#include "platform/DriveC.h"
#include "platform/Numbers.h"
#include "platform/QtPrinterDevice.h"

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

/// The existing file that `chosen` names without regard to letter case, which the program would write over;
/// `chosen` itself where there is none. The file dialog asks only about a file of exactly that name.
QString fileInAnyCase(const QString& chosen)
{
    const DriveC drive;
    const QString found = drive.hostPath(drive.varnPath(chosen));
    return !QFileInfo::exists(chosen) && QFileInfo(found).isFile() ? found : chosen;
}

QString overwriteQuestion(const QString& path)
{
    return QStringLiteral("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName());
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
    const auto useSuffix = [&dialog](const QString& nameFilter) {
        dialog.setDefaultSuffix(
            QRegularExpression(QStringLiteral("\\*\\.(\\w+)")).match(nameFilter).captured(1));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, useSuffix);
    useSuffix(dialog.selectedNameFilter());
    dialog.selectFile(initial);
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString chosen = dialog.selectedFiles().constFirst();
        const QString target = fileInAnyCase(chosen);
        if (target == chosen || confirmLoss(overwriteQuestion(target), title)) {
            return target;
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
