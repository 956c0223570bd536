#pragma once

#include "ui/KeyWatchingView.h"

#include <QTableView>

/** A table with watched keys. A right click below the last row clears the selection and still shows the menu. */
class VTTableView : public KeyWatchingView<QTableView>
{
    Q_OBJECT

public:
    explicit VTTableView(QWidget *parent = nullptr);
    [[nodiscard]] std::optional<int> firstSelectedRow() const;

protected:
    bool prepareMenuAt(const QModelIndex &clicked) override;
};
