#include "ui/BoxStyle.h"

#include "ui/Colours.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace {

const QString styleName = QStringLiteral("Fusion");
constexpr double leastToSee = 3;
constexpr double frameShare = 0.3; // of the text's colour
constexpr int rounding = 2;

} // namespace

BoxStyle::BoxStyle()
    : QProxyStyle(styleName)
{
}

void BoxStyle::use()
{
    if (QApplication::style()->name().compare(styleName, Qt::CaseInsensitive) == 0)
        QApplication::setStyle(new BoxStyle);
}

void BoxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    if ((element != PE_IndicatorCheckBox && !isRound) || !option->state.testFlag(State_Enabled))
        return;
    const QColor window = option->palette.color(QPalette::Window);
    const QColor text = option->palette.color(QPalette::WindowText);
    const QRectF frame = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(readable(blended(window, text, frameShare), window, text, leastToSee));
    painter->setBrush(Qt::NoBrush);
    isRound ? painter->drawEllipse(frame) : painter->drawRoundedRect(frame, rounding, rounding);
    painter->restore();
}
