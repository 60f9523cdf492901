// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "entry/cell_editing.h"
#include "entry/number_boxes.h"
#include "entry/parameter_lists.h"
#include "support/form_test.h"

/// The procedures that share one piece of code report under the name of the control that they serve.
class ReportSources : public FormTest {
protected:
    static std::string of(const ui::Control& control, const std::string& event) {
        return "Brenica." + control.Name() + "_" + event;
    }
};

TEST_F(ReportSources, OfANumberBoxNameTheBox) {
    for (const NumberBox& box : form.NumberBoxes()) {
        EXPECT_EQ(box.ChangeSource, of(*box.Box, "Change"));
        EXPECT_EQ(box.KeyPressSource, of(*box.Box, "KeyPress"));
        const bool copied = box.Box == &form.txtContinuousHR || box.Box == &form.txtRemoveBinIndex;
        EXPECT_EQ(box.GotFocusSource, of(copied ? form.txtTotalBins : *box.Box, "GotFocus"));
    }
}

TEST_F(ReportSources, OfAGridsCellsNameTheGrid) {
    for (const CellEditing& editing : form.CellEditings()) {
        const bool offers = !editing.DropDowns.empty();
        EXPECT_EQ(editing.BeforeEditSource, offers ? of(*editing.Grid, "BeforeEdit") : "");
        const bool filters = editing.NumberCol != CellEditing::NoCol;
        EXPECT_EQ(editing.KeyPressEditSource, filters ? of(*editing.Grid, "KeyPressEdit") : "");
        EXPECT_EQ(editing.ValidateEditSource, editing.Validates ? of(*editing.Grid, "ValidateEdit") : "");
    }
}

TEST_F(ReportSources, OfAListNameItsButtons) {
    for (const ParameterList& list : form.ParameterLists()) {
        EXPECT_EQ(list.UpdateSource, of(*list.Update, "Click"));
        EXPECT_EQ(list.RemoveClickSource, of(*list.Remove, "Click"));
        const std::string& button = (*list.Move)(0).Name();  // with its index in the array
        EXPECT_EQ(list.MoveSource, "Brenica." + button.substr(0, button.find('(')) + "_Click");
    }
}
