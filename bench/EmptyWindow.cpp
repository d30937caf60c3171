// What the start of varn is measured by: an empty window of the same toolkit, or with "question" one like the
// question that varn begins with.

#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>

#include <memory>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const bool asks = QApplication::arguments().contains(QStringLiteral("question"));
    const std::unique_ptr<QWidget> window =
        asks ? std::unique_ptr<QWidget>(new QMessageBox(
                   QMessageBox::Question, QStringLiteral("Map Name, Font"),
                   QStringLiteral("Map Name: Sample\nMap Font: Arial"), QMessageBox::Yes | QMessageBox::No))
             : std::make_unique<QMainWindow>();
    window->show();
    return QApplication::exec();
}
