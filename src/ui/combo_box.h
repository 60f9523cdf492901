// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "ui/control.h"
#include "ui/event.h"
#include "ui/gap_buffer.h"

namespace ui {

/// A drop-down list of texts with at most one chosen; ListIndex is -1 where none is.
class ComboBox : public Control {
public:
    ComboBox(Control& container, std::string name, std::vector<std::string> items = {}, Design design = {});

    /// Fired when code chooses another item, and on every choice by the user.
    Event<> Click;

    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::string& List(int index) const;
    int ListIndex() const { return listIndex_; }
    /// Raises InvalidPropertyValue outside -1 to ListCount - 1.
    void ListIndex(int index);
    /// The chosen item, empty where none is.
    std::string Text() const;

    void AddItem(std::string text) {
        *items_.insert(items_.size()) = std::move(text);
        reportChange();
    }
    /// Raises InvalidProcedureCall where there is no such item. Removing the chosen item leaves none chosen.
    void RemoveItem(int index);
    void Clear();

    void UserChoose(int index);

private:
    GapBuffer<std::string> items_;
    int listIndex_ = -1;
};

}  // namespace ui
