#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    // A screen that begins elsewhere than at 0, 0, as beside a panel or another screen.
    QTemporaryFile screen;
    if (!screen.open() ||
        screen.write(R"({"screens":[{"name":"main","x":100,"y":50,"width":800,"height":800}]})") < 0) {
        return 1;
    }
    screen.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    const QTemporaryDir settings; // those of whoever runs the tests stay as they are
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QApplication::setQuitOnLastWindowClosed(false); // the next test may wait for a dialog
    return RUN_ALL_TESTS();
}
