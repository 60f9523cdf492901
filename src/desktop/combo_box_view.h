// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

#include "desktop/view.h"
#include "ui/combo_box.h"

namespace desktop {

/// A drop-down list; typing finds an item by its beginning, open or closed.
class ComboBoxView : public QComboBox, public View {
public:
    ComboBoxView(ui::ComboBox& box, FormLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }
    void follow() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showPopup() override;
    /// A wheel that only scrolls past must not choose.
    void wheelEvent(QWheelEvent* event) override;

private:
    bool showsTheItems() const;
    void choose(int index);
    void pressInWindow(const QKeySequence& keys) const;

    ui::ComboBox& box_;
    FormLink& link_;
};

}  // namespace desktop
