#include "exchange/Credits.h"

#include "dialectometry/LibraryVersions.h"
#include "geodata/GeoData.h"
#include "platform/RunTimeError.h"

#include <QtGlobal>

namespace {

/// Versions are not known where the module is missing.
GeoData::Versions geoVersions()
{
    try {
        return geoData().versions();
    } catch (const RunTimeError&) {
        return {};
    }
}

std::vector<Credit> libraries(const GeoData::Versions& versions)
{
    return {{QStringLiteral("Qt"), QString::fromLatin1(qVersion()),
             QStringLiteral("The Qt Company Ltd. and other contributors"), QStringLiteral("GNU LGPL 3"),
             QStringLiteral("https://www.qt.io"), QStringLiteral("windows, drawing and printing")},
            {QStringLiteral("GDAL"), versions.gdal,
             QStringLiteral("Frank Warmerdam, Even Rouault and other contributors"), QStringLiteral("MIT"),
             QStringLiteral("https://gdal.org"), QStringLiteral("tables and layers in and out")},
            {QStringLiteral("PROJ"), versions.proj,
             QStringLiteral("Gerald Evenden, Frank Warmerdam and other contributors"), QStringLiteral("MIT"),
             QStringLiteral("https://proj.org"), QStringLiteral("map projections, through GDAL")},
            {QStringLiteral("GEOS"), geosVersion(), QStringLiteral("GEOS contributors"),
             QStringLiteral("GNU LGPL 2.1"), QStringLiteral("https://libgeos.org"),
             QStringLiteral("the cells of localities, and geometry through GDAL")},
            {QStringLiteral("Eigen"), eigenVersion(),
             QStringLiteral("Benoît Jacob, Gaël Guennebaud and other contributors"),
             QStringLiteral("MPL 2.0"), QStringLiteral("https://eigen.tuxfamily.org"),
             QStringLiteral("the scaling of distances")},
            {QStringLiteral("qpdf"), QString(), QStringLiteral("Jay Berkenbilt and other contributors"),
             QStringLiteral("Apache License 2.0"), QStringLiteral("https://qpdf.org"),
             QStringLiteral("atlases of many pages")},
            {QStringLiteral("libpng"), QString(), QStringLiteral("The PNG Reference Library Authors"),
             QStringLiteral("PNG Reference Library License version 2"),
             QStringLiteral("http://www.libpng.org"), QStringLiteral("pictures as PNG")}};
}

std::vector<Credit> data()
{
    return {{QStringLiteral("Natural Earth, 1:50 million"), QString(), QString(),
             QStringLiteral("public domain"), QStringLiteral("https://www.naturalearthdata.com"),
             QStringLiteral("coasts, rivers, lakes and borders of new maps")},
            {QStringLiteral("Charis SIL"), QStringLiteral("6.101"),
             QStringLiteral("1997-2022 SIL International"), QStringLiteral("SIL Open Font License 1.1"),
             QStringLiteral("https://openfontlicense.org"),
             QStringLiteral("the pictures of phonetic letters were drawn from it; the font itself is not "
                            "included. \"Charis\" and \"SIL\" are reserved font names")}};
}

QString lineOf(const Credit& credit)
{
    const QString name = credit.version.isEmpty() ? credit.name : credit.name + u' ' + credit.version;
    const QString holder = credit.holder.isEmpty() ? QString() : QStringLiteral(" © %1.").arg(credit.holder);
    return QStringLiteral("- **%1**: %2.%3 Licence: %4. <%5>\n")
        .arg(name, credit.use, holder, credit.licence, credit.home);
}

} // namespace

std::vector<Credit> credits()
{
    std::vector<Credit> all = libraries(geoVersions());
    for (Credit& credit : data()) {
        all.push_back(std::move(credit));
    }
    return all;
}

QString programVersion()
{
    return QStringLiteral(VARN_VERSION);
}

QString creditsText()
{
    QString text = QStringLiteral("# VARN %1\n\nDialect maps: surveys, symbols, linguistic maps and their "
                                  "statistics.\n\nThe sample survey is invented, all of it.\n\n"
                                  "## Made with\n\n")
                       .arg(programVersion());
    for (const Credit& credit : credits()) {
        text += lineOf(credit);
    }
    return text;
}
