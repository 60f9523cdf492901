// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/view_factory.h"

#include "desktop/chart_view.h"
#include "desktop/combo_box_view.h"
#include "desktop/grid_view.h"
#include "desktop/simple_views.h"
#include "desktop/tab_strip_view.h"
#include "desktop/text_box_view.h"

namespace desktop {

View* makeView(ui::Control& control, FormLink& link, QWidget* parent) {
    using ui::ControlKind;
    switch (control.Kind()) {
        case ControlKind::Frame:
            if (control.Caption().empty()) return new FrameView(parent);
            return new CaptionedFrameView(static_cast<ui::Frame&>(control), parent);
        case ControlKind::Label: return new LabelView(static_cast<ui::Label&>(control), link, parent);
        case ControlKind::CommandButton:
            return new CommandButtonView(static_cast<ui::CommandButton&>(control), link, parent);
        case ControlKind::TextBox: return new TextBoxView(static_cast<ui::TextBox&>(control), link, parent);
        case ControlKind::ComboBox:
            return new ComboBoxView(static_cast<ui::ComboBox&>(control), link, parent);
        case ControlKind::CheckBox:
            return new CheckBoxView(static_cast<ui::CheckBox&>(control), link, parent);
        case ControlKind::OptionButton:
            return new OptionButtonView(static_cast<ui::OptionButton&>(control), link, parent);
        case ControlKind::TabStrip:
            return new TabStripView(static_cast<ui::TabStrip&>(control), link, parent);
        case ControlKind::Grid: return new GridView(static_cast<ui::Grid&>(control), link, parent);
        case ControlKind::Chart: return new ChartView(static_cast<ui::Chart&>(control), link, parent);
        case ControlKind::Picture: return new PictureView(static_cast<ui::Picture&>(control), parent);
        case ControlKind::Form:
        case ControlKind::MenuItem: break;
    }
    return nullptr;
}

}  // namespace desktop
