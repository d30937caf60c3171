#include "exchange/KnownHeadings.h"

#include <QHash>

#include <array>
#include <utility>

namespace {

/// Headings of each role, as `plainHeading` writes them.
const QHash<QString, ColumnRole>& knownHeadings()
{
    static const QHash<QString, ColumnRole> known = [] {
        const std::array<std::pair<ColumnRole, const char*>, 9> words = {
            {{ColumnRole::Id,
              "id no nr num number code key locality_id language_id site_id place_id nummer ortsnummer "
              "kennung numéro numero clave código 番号 地点番号 コード"},
             {ColumnRole::Name, "name locality location place site village town city language doculect "
                                "variety dialect community "
                                "informant ort ortsname ortschaft ortspunkt gemeinde sprache lieu localité "
                                "commune village nom point "
                                "langue point_d'enquête lugar localidad pueblo municipio nombre lengua punto "
                                "地点 地点名 地名 市町村 名前"},
             {ColumnRole::Longitude,
              "longitude long lon lng länge laenge längengrad geographische_länge longitud 経度 東経"},
             {ColumnRole::Latitude, "latitude lat breite breitengrad geographische_breite latitud 緯度 北緯"},
             {ColumnRole::X, "x easting east rechtswert abscisse abscisa"},
             {ColumnRole::Y, "y northing north hochwert ordonnée ordenada"},
             {ColumnRole::Item, "item parameter parameter_id concept question meaning gloss begriff frage "
                                "stichwort lemma bedeutung "
                                "concepto pregunta significado sens 項目 質問 意味"},
             {ColumnRole::Answer,
              "answer form response value word antwort beleg wort wert réponse forme mot valeur "
              "respuesta forma palabra valor 語形 回答 答え"},
             {ColumnRole::Left,
              "comment comments note notes remark remarks source elevation altitude glottocode iso "
              "iso639p3code glottolog_name macroarea family bemerkung bemerkungen kommentar quelle "
              "remarque remarques commentaire observaciones comentario fuente 備考 出典"}}};
        QHash<QString, ColumnRole> headings;
        for (const auto& [role, texts] : words) {
            for (const QString& text : QString::fromUtf8(texts).split(QLatin1Char(' '))) {
                headings.insert(text, role);
            }
        }
        return headings;
    }();
    return known;
}

QString plainHeading(const QString& heading)
{
    return heading.normalized(QString::NormalizationForm_KC)
        .toLower()
        .simplified()
        .replace(QLatin1Char(' '), QLatin1Char('_'));
}

} // namespace

std::optional<ColumnRole> knownRole(const QString& heading)
{
    const auto found = knownHeadings().constFind(plainHeading(heading));
    return found == knownHeadings().constEnd() ? std::nullopt : std::optional(*found);
}

bool isPlace(ColumnRole role)
{
    return role == ColumnRole::Longitude || role == ColumnRole::Latitude || role == ColumnRole::X ||
           role == ColumnRole::Y;
}
