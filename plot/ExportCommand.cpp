#include "plot/ExportCommand.h"

#include "exchange/SurveyExport.h"

bool exportMap(const Folders& folders, const QString& output, PlotListener& listener)
{
    const auto goOn = [&listener](int done, int total, const QString& item) {
        listener.page(done + 1, total, item);
        return true;
    };
    const std::optional<ImportReport> report = exportSurvey(folders, output, goOn);
    if (report && !report->isComplete()) {
        listener.warning(report->text());
    }
    return report && report->isComplete();
}
