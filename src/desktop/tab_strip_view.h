// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QList>

#include "desktop/view.h"
#include "ui/tab_strip.h"

namespace desktop {

class TabStripView;

/// One tab: a button that looks like a tab.
class TabView : public QAbstractButton {
public:
    TabView(int index, TabStripView& strip);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void nextCheckState() override {}

private:
    int index_;
    TabStripView& strip_;
};

/// The tabs at the top, in the rows that the form gives them, and a sheet below them for what they show.
class TabStripView : public QWidget, public View {
public:
    TabStripView(ui::TabStrip& strip, FormLink& link, QWidget* parent);
    QWidget& widget() override { return *this; }
    void follow() override;

    void select(int index);
    /// The tab before or behind the selected one, with the focus on it; behind the last the first, if it goes round.
    void step(int by, bool goesRound = false);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ui::TabStrip& strip_;
    FormLink& link_;
    QList<TabView*> tabs_;
};

}  // namespace desktop
