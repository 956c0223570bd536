#pragma once

#include "support/Settings.h"

#include <QObject>
#include <QString>
#include <functional>

class QLabel;
class QLineEdit;

/**
 * A line in which the path of a folder is typed. It is applied by Return and Tab, never half typed: whoever looks into
 * another program finds it as it was left, and Escape brings back what is in force. What is wrong with it stands in the
 * hint below while it is typed. Owned by the line; main thread only.
 */
class PathField : public QObject
{
    Q_OBJECT

public:
    struct Place
    {
        const settings::Setting &setting;
        std::function<QString()> inForce;
        std::function<void(const QString &typed)> apply; ///< called when the line's own event is over
    };
    PathField(QLineEdit &line, QLabel &hint, Place place);

    /** Shows what is in force. */
    void refresh();
    /** The same, but for what is being typed. */
    void follow();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isChanged() const;
    [[nodiscard]] QString shown() const;
    void check();
    void apply();

    QLineEdit &m_line;
    QLabel &m_hint;
    QString m_usualHint;
    Place m_place;
};
