#include "platform/forms/QtDialogs.h"
#include "shell/VarnModule.h"
#include "shell/forms/frmMain.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>

#include <cstdio>
#include <span>
#include <string_view>

namespace {

enum ExitCode { Done = 0, WrongUsage = 2 };

constexpr auto Usage = "usage: varn [--help | --version]\nDraws dialect maps. F1 opens the manual.\n";

/// Answers what needs no screen; returns whether that was all.
bool isAnswered(std::span<char* const> words)
{
    const std::string_view option = words.size() == 2 ? words[1] : "";
    if (option == "--version") {
        std::puts("varn " VARN_VERSION);
    } else if (option == "--help" || option == "-h") {
        std::fputs(Usage, stdout);
    } else {
        return false;
    }
    return true;
}

QIcon programIcon()
{
    QIcon icon;
    for (const QFileInfo& file : QDir(QStringLiteral(":/packaging/icons")).entryInfoList(QDir::Files)) {
        icon.addFile(file.filePath());
    }
    return icon;
}

} // namespace

int main(int argc, char* argv[])
{
    if (isAnswered({argv, static_cast<std::size_t>(argc)})) {
        return Done;
    }
    const QApplication application(argc, argv);
    if (QApplication::arguments().size() > 1) { // other than the toolkit's own
        std::fputs(Usage, stderr);
        return WrongUsage;
    }
    QApplication::setApplicationName(QStringLiteral("varn"));
    QApplication::setApplicationVersion(QStringLiteral(VARN_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("varn"));
    QApplication::setWindowIcon(programIcon());
    VarnModule varn;
    QtDialogs dialogs;
    frmMain form(varn, dialogs);
    form.Form_Load(QStringLiteral(":/installation"));
    form.show();
    return QApplication::exec();
}
