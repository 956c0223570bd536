#pragma once

#include <QProxyStyle>

/**
 * The style that draws where the desktop brings none, with a frame around what is to be ticked that can be seen in a
 * dark palette, too: at 3 to 1 (WCAG 2.1, 1.4.11). Main thread.
 */
class BoxStyle : public QProxyStyle
{
    Q_OBJECT

public:
    BoxStyle();
    /** In place of the application's style, if that is the one that it draws with. */
    static void use();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};
