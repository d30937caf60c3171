#include "exchange/ReadSource.h"

#include "exchange/CldfSource.h"
#include "exchange/LayerFiles.h"
#include "exchange/LayerSource.h"
#include "exchange/TableSource.h"
#include "platform/RunTimeError.h"

#include <QFileInfo>

SourceKind kindOfSource(const QString& path)
{
    if (!QFileInfo::exists(path)) {
        throw RunTimeError(ErrorNumber::FileNotFound).at({path});
    }
    if (isCldf(path)) {
        return SourceKind::Cldf;
    }
    if (isLayer(path)) {
        return SourceKind::Layer;
    }
    if (QFileInfo(path).isDir()) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("There is no CLDF metadata in the folder."))
            .at({path});
    }
    return SourceKind::Table;
}

SourceSurvey readSource(const SourceChoices& choices)
{
    switch (kindOfSource(choices.path)) {
    case SourceKind::Cldf:
        return readCldf(choices);
    case SourceKind::Layer:
        return readLayerSource(choices);
    default:
        return readTableSource(choices);
    }
}
