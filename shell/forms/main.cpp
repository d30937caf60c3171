#include "platform/forms/QtDialogs.h"
#include "shell/VarnModule.h"
#include "shell/forms/frmMain.h"

#include <QApplication>
#include <QIcon>

#include <cstdio>
#include <string_view>

namespace {

/// Answers what needs no screen; returns the exit code, or nothing where the program is to start.
std::optional<int> answer(int argc, char* argv[])
{
    if (argc < 2) {
        return std::nullopt;
    }
    const std::string_view option = argv[1];
    if (argc == 2 && option == "--version") {
        std::puts("varn " VARN_VERSION);
        return 0;
    }
    const bool isHelp = argc == 2 && (option == "--help" || option == "-h");
    std::fputs("usage: varn [--help | --version]\nDraws dialect maps. F1 opens the manual.\n",
               isHelp ? stdout : stderr);
    return isHelp ? 0 : 2;
}

QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QStringLiteral(":/packaging/icons/varn-%1.png").arg(size));
    }
    return icon;
}

} // namespace

int main(int argc, char* argv[])
{
    if (const auto exitCode = answer(argc, argv)) {
        return *exitCode;
    }
    const QApplication application(argc, argv);
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
