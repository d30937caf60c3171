#include "exchange/ReadSource.h"

#include "exchange/CldfSource.h"
#include "exchange/LayerFiles.h"
#include "exchange/LayerSource.h"
#include "exchange/TableSource.h"
#include "platform/RunTimeError.h"

#include <QFileInfo>

SourceSurvey readSource(const SourceChoices& choices)
{
    const QString& path = choices.path;
    if (!QFileInfo::exists(path)) {
        throw RunTimeError(ErrorNumber::FileNotFound).at({path});
    }
    if (isCldf(path)) {
        return readCldf(choices);
    }
    if (isLayer(path)) {
        return readLayerSource(choices);
    }
    if (QFileInfo(path).isDir()) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("There is no CLDF metadata in the folder."))
            .at({path});
    }
    return readTableSource(choices);
}
