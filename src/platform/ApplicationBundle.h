#pragma once

#include <QString>
#include <QVariantMap>

namespace platform {

/** An application's bundle: a folder with Contents/Info.plist and Contents/Resources. A plain value; reads on demand. */
class ApplicationBundle
{
public:
    explicit ApplicationBundle(QString path) : m_path(std::move(path)) {}

    /** The program's own: Tessaro.app beside the running executable, or ../share/tessaro/Tessaro.app when installed. */
    static const ApplicationBundle &main();

    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] QVariantMap information() const;
    [[nodiscard]] QString informationString(const QString &key) const { return information().value(key).toString(); }
    /** The resource's path; null when there is no such file or folder. */
    [[nodiscard]] QString resource(const QString &name) const;

private:
    QString m_path;
};

/** Path of the running executable, links resolved. */
[[nodiscard]] QString executablePath();

/** Path of the desktop entry of the application registered under the identifier; null when there is none. */
[[nodiscard]] QString registeredApplication(const QString &bundleIdentifier);

} // namespace platform
