#pragma once

#include <QString>
#include <QVariantMap>

namespace platform {

/** An application's bundle: a folder with Contents/Info.plist and Contents/Resources. A plain value; reads on demand.
 */
class ApplicationBundle
{
public:
    explicit ApplicationBundle(QString path)
        : m_path(std::move(path))
    {
    }

    /** The program's own: Tessaro.app beside the running executable, or ../lib/tessaro/Tessaro.app when installed, to
       which ../share/tessaro/Tessaro.app leads. */
    static const ApplicationBundle &main();

    [[nodiscard]] QString path() const { return m_path; }
    [[nodiscard]] QVariantMap information() const;
    [[nodiscard]] QString informationString(const QString &key) const { return information().value(key).toString(); }
    /** The resource's path; null when there is no such file or folder. */
    [[nodiscard]] QString resource(const QString &name) const;

private:
    QString m_path;
};

} // namespace platform
