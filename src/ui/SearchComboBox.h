#pragma once

#include <QComboBox>

/**
 * A list to choose from that gets a search line when it is long: what is typed into the open list narrows it, the
 * arrow keys walk in it, Return takes what is marked, Escape leaves it as it was.
 */
class SearchComboBox : public QComboBox
{
    Q_OBJECT

public:
    using QComboBox::QComboBox;

    void showPopup() override;
};
