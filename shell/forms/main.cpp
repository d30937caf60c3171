#include "platform/forms/QtDialogs.h"
#include "shell/VarnModule.h"
#include "shell/forms/frmMain.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("varn"));
    VarnModule varn;
    QtDialogs dialogs;
    frmMain form(varn, dialogs);
    form.Form_Load(QStringLiteral(":/installation"));
    form.show();
    return QApplication::exec();
}
