#include "app/HelpPages.h"

#include "platform/files/ApplicationBundle.h"
#include "support/Settings.h"

#include <QUrlQuery>
#include <QVariantMap>

namespace help {
namespace {

struct PageEntry
{
    const char *name;
    const char *standardAddress;
    bool saysProgram;
    bool saysVersion;
};

const PageEntry &entryOf(Page page)
{
    static const PageEntry home{"applicationHome", "https://www.vantrel.example/tessaro", false, false};
    static const PageEntry products{"moreProducts", "https://www.vantrel.example/products", false, false};
    static const PageEntry family{"productFamily", "https://www.vantrel.example/lumadex", false, false};
    static const PageEntry bug{"reportBug", "https://www.vantrel.example/support/bug", true, true};
    static const PageEntry feature{"suggestFeature", "https://www.vantrel.example/support/feature", true, false};
    static const PageEntry maker{"makerHome", "https://www.vantrel.example/", false, false};
    switch (page) {
    case Page::ApplicationHome:
        return home;
    case Page::MoreProducts:
        return products;
    case Page::ProductFamily:
        return family;
    case Page::ReportBug:
        return bug;
    case Page::SuggestFeature:
        return feature;
    case Page::MakerHome:
        break;
    }
    return maker;
}

} // namespace

QUrl addressOf(Page page, const QVariantMap &configured, const QString &version)
{
    const PageEntry &entry = entryOf(page);
    const QString own = configured.value(QLatin1String(entry.name)).toString();
    QUrl address(own.isEmpty() ? QString::fromLatin1(entry.standardAddress) : own);
    QUrlQuery query(address);
    if (entry.saysProgram)
        query.addQueryItem(QStringLiteral("app"), QStringLiteral("tessaro"));
    if (entry.saysVersion) // escaped here: a version may hold a plus sign or an ampersand
        query.addQueryItem(QStringLiteral("version"), QString::fromLatin1(QUrl::toPercentEncoding(version)));
    if (!query.isEmpty())
        address.setQuery(query);
    return address;
}

QUrl addressOf(Page page)
{
    const QString version = platform::ApplicationBundle::main().informationString("CFBundleShortVersionString");
    return addressOf(page, settings::webAddresses.value().toMap(), version);
}

} // namespace help
