#pragma once

#include <QString>
#include <QUrl>

/** The web pages that the Help menu opens. Addresses are settings ("webAddresses", by the names below). */
namespace help {

enum class Page { ApplicationHome, MoreProducts, ProductFamily, ReportBug, SuggestFeature, MakerHome };

/** The page's address; a bug report carries the program and its version, a suggestion the program. Pure. */
[[nodiscard]] QUrl addressOf(Page page, const QVariantMap &configured, const QString &version);

/** From the settings and the bundle at the moment of the call. */
[[nodiscard]] QUrl addressOf(Page page);

} // namespace help
