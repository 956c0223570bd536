#include "ui/Placeholders.h"

#include "ui/Colours.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

namespace {

class Keeper : public QObject
{
public:
    using QObject::QObject;

    void keep()
    {
        const QPalette now = QApplication::palette();
        const QColor wanted = placeholderText(now);
        if (now.color(QPalette::PlaceholderText) == wanted)
            return;
        QPalette only; // nothing else is to be kept from following the desktop
        only.setResolveMask(0);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            only.setColor(group, QPalette::PlaceholderText, wanted);
        QApplication::setPalette(only);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (object == QApplication::instance() && event->type() == QEvent::ApplicationPaletteChange)
            keep();
        return false;
    }
};

} // namespace

void keepPlaceholdersReadable()
{
    auto *keeper = new Keeper(QApplication::instance());
    keeper->keep();
    QApplication::instance()->installEventFilter(keeper);
}
