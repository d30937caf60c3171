#include "plot/ImportCommand.h"

#include "exchange/MakeSurvey.h"
#include "exchange/ReadSource.h"
#include "exchange/WriteSurvey.h"

#include <utility>

void importSurvey(const PlotOptions& options, PlotListener& listener)
{
    Folders folders;
    folders.VarnPath = folders.Drive.varnPath(options.installation);
    requireNewMap(folders, options.map);
    SourceSurvey source = readSource(options.source);
    if (source.title.isEmpty()) {
        source.title = options.map;
    }
    const auto progress = [&listener](int done, int total, const QString& item) {
        listener.page(done + 1, total, item);
        return true;
    };
    const auto survey = makeSurvey(std::move(source), options.newSurvey, folders, progress);
    writeSurvey(*survey, folders, options.map, progress);
    listener.report(survey->report.text());
}
