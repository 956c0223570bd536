#pragma once

#include <QWidget>

/** The place of the shortcut interface in the preferences. */
class VTShortcutKeyContainerView : public QWidget
{
    Q_OBJECT

public:
    explicit VTShortcutKeyContainerView(QWidget *parent = nullptr);
};
