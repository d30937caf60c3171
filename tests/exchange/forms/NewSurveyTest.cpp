// Walks through the wizard, from the source to the first map.

#include "exchange/forms/frmNewSurvey.h"
#include "tests/support/TestProgram.h"

#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QTreeWidget>

namespace {

class NewSurveyWizard : public StartedForms
{
protected:
    NewSurveyWizard()
    {
        put("isle.csv", "id,name,longitude,latitude,rain,snow\n"
                        "a,Ann,5,52,ame;ame-huri,x\nb,Bo,6,52,ame,y\nc,Cy,5,53,,x\nd,Di,6,53,yuki,x\n");
        put("bare.csv", "name,snow,rain,p,q\nXa,x,ame,5,52\nYa,y,uyu,6,52\nZa,x,ame,5,53\n");
        put("coast.geojson", R"({"type":"LineString","coordinates":[[4,51],[7,51],[7,54],[4,54]]})");
    }

    QString put(const char* name, const QByteArray& text) const
    {
        survey.write(QStringLiteral("C:\\") + QLatin1String(name), text);
        return survey.hostPath(QLatin1String(name));
    }
    frmNewSurvey& wizard() { return *program.main.findChild<frmNewSurvey*>(); }
    template <typename Control>
    Control& of(const char* name)
    {
        return child<Control>(wizard(), name);
    }
    /// A control of the page that is shown.
    template <typename Control>
    Control& here(const char* name)
    {
        return child<Control>(*wizard().currentPage(), name);
    }
    void begin(const char* file)
    {
        trigger<frmMain>("mnuNewSurvey");
        program.dialogs.files = {survey.hostPath(QLatin1String(file))};
        of<QPushButton>("cmdSourceFile").click();
    }
    void next() { wizard().next(); }
    QString page() { return wizard().currentPage()->title(); }
    /// Gives a column its role, as its box does.
    void correct(int column, int role)
    {
        auto* box = qobject_cast<QComboBox*>(of<QTableWidget>("tblColumns").cellWidget(0, column));
        box->setCurrentIndex(role);
        Q_EMIT box->activated(role);
    }
    void addCoast()
    {
        program.dialogs.files = {survey.hostPath("coast.geojson")};
        of<QPushButton>("cmdAddLayer").click();
    }
};

} // namespace

TEST_F(NewSurveyWizard, ATableBecomesTheCurrentMapWithItsFirstItem)
{
    begin("isle.csv");
    EXPECT_TRUE(of<QLabel>("lblRecognised").text().contains("4 localities, 2 items"));
    next();
    next();
    addCoast();
    EXPECT_EQ(page(), "Map");
    next();
    auto& items = of<QTreeWidget>("lstItems");
    EXPECT_EQ(items.topLevelItem(0)->text(0) + items.topLevelItem(0)->text(1), "rain3");
    of<QPushButton>("cmdAll").click();
    EXPECT_EQ(of<QLabel>("lblChosen").text(), "2 of 2 items");
    of<QPushButton>("cmdNone").click();
    next();
    EXPECT_EQ(page(), "Items") << "a survey has an item";
    items.topLevelItem(1)->setCheckState(0, Qt::Checked);
    next();
    Q_EMIT of<QLineEdit>("txtMapName").textEdited("test");
    EXPECT_FALSE(of<QPushButton>("cmdCreate").isEnabled()) << "there is a map of that name";
    Q_EMIT of<QLineEdit>("txtMapName").textEdited("isle");
    of<QPushButton>("cmdCreate").click();
    EXPECT_TRUE(of<QPlainTextEdit>("txtReport").toPlainText().contains("4 localities, 1 items"));
    wizard().accept();

    EXPECT_EQ(program.varn.VarnMapName, "\\isle");
    EXPECT_TRUE(survey.read(MapNameFile).startsWith("\"\\isle\"")) << "it is the map of the next start, too";
    EXPECT_EQ(program.varn.Hanrei, "snow");
    EXPECT_TRUE(form<frmAtlas>().isVisible());
    EXPECT_EQ(form<frmAtlas>().document().page().item.Hanrei, "snow");
    EXPECT_GT(program.varn.NHanrei, 0);
    program.click("cmdMap");
    Program::menu("mnuMapLing").trigger();
    EXPECT_TRUE(wasPrinted(Program::drawing(), "snow")) << "the other forms show it, too";
    EXPECT_TRUE(Program::menu("mnuWholeWordForms").isChecked());
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(NewSurveyWizard, WhatIsWrongIsSaidOnItsPageAndKeepsOnIt)
{
    begin("bare.csv");
    next();
    EXPECT_EQ(page(), "Columns");
    next();
    EXPECT_EQ(page(), "Columns");
    EXPECT_TRUE(here<QLabel>("lblFault").text().contains("does not say where its localities lie"));
    correct(3, static_cast<int>(ColumnRole::Longitude));
    correct(4, static_cast<int>(ColumnRole::Latitude));
    next();
    EXPECT_EQ(page(), "Map");
    addCoast();
    of<QComboBox>("cboProjection").setCurrentIndex(2);
    Q_EMIT of<QComboBox>("cboProjection").activated(2);
    of<QSpinBox>("spnEpsg").setValue(1024);
    next();
    EXPECT_EQ(page(), "Map");
    EXPECT_NE(here<QLabel>("lblFault").text(), "");
    of<QSpinBox>("spnEpsg").setValue(3035);
    next();
    EXPECT_EQ(page(), "Items");
    wizard().reject();
    EXPECT_FALSE(wizard().isVisible());
    EXPECT_EQ(program.varn.VarnMapName, "\\Test");
}

TEST_F(NewSurveyWizard, LocalitiesAndFoldersAreBrowsedForAndLayersTakenBack)
{
    put("answers.csv", "name,rain\nP,x\nQ,y\nR,x\n");
    begin("answers.csv");
    EXPECT_TRUE(of<QLabel>("lblFault").text().contains("Name the file with the localities"));
    program.dialogs.files = {put("places.txt", "name;x;y\nP;1;1\nQ;2;1\nR;2;2\n")};
    of<QPushButton>("cmdLocalities").click();
    EXPECT_EQ(of<QLabel>("lblFault").text(), "");
    program.dialogs.folders = {survey.root()};
    of<QPushButton>("cmdSourceFolder").click();
    EXPECT_TRUE(of<QLabel>("lblFault").text().contains("no CLDF metadata"));
    EXPECT_FALSE(wizard().button(QWizard::NextButton)->isEnabled());
    addCoast();
    of<QListWidget>("lstLayers").setCurrentRow(0);
    of<QPushButton>("cmdRemoveLayer").click();
    EXPECT_EQ(of<QListWidget>("lstLayers").count(), 0);
}

TEST_F(NewSurveyWizard, AFileThatIsDroppedOnTheMainFormIsTheSource)
{
    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(survey.hostPath("isle.csv"))});
    QDropEvent drop({}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter({}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&program.main, &enter);
    QApplication::sendEvent(&program.main, &drop);
    EXPECT_TRUE(wizard().isVisible());
    EXPECT_EQ(of<QLineEdit>("txtSource").text(), survey.hostPath("isle.csv"));
}

TEST_F(NewSurveyWizard, LocalitiesWithDegreesComeThroughTheSameDoor)
{
    program.dialogs.files = {put("places.csv", "Name,Longitude,Latitude\nAnn,5,52\nBo,6,52\n")};
    program.dialogs.savedFiles = {survey.hostPath("Varn62E/Varn/VarnData/Test/Map/Loc.map")};
    trigger<frmMain>("mnuImportLocalities");
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
    EXPECT_EQ(localityTitle(program.varn, 2), "2 Bo");
    EXPECT_LT(program.varn.LocXY(1, 0), program.varn.LocXY(2, 0));
}

TEST_F(NewSurveyWizard, TheSurveyThatIsExportedIsToldOf)
{
    program.dialogs.savedFiles = {survey.hostPath("out.csv")};
    trigger<frmMain>("mnuExportSurvey");
    EXPECT_TRUE(survey.read("C:\\out.csv").contains("Rain"));
    EXPECT_EQ(program.dialogs.shown.back().title, "Export Survey");
}
