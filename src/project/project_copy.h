// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

/// A text of the project that a saved file does not give back when it is opened.
struct UncarriedCell {
    std::string Grid;  ///< name of the control: a grid, or a box with Row and Column 0
    int Row = 0;
    int Column = 0;
    std::string Text;
    /// Whether the file loses it. Otherwise the file holds it, and opening alone may change it: a species that is shown
    /// in boxes takes over what they make of its texts.
    bool LostBySaving = true;

    bool operator==(const UncarriedCell&) const = default;
};

/// A project as it stands at one moment: enough to bring a form back to it.
struct ProjectCopy {
    /// A project file that opens to the same lists and tables, whatever is entered in them: what the format cannot
    /// carry has a stand-in there.
    std::string Text;
    std::vector<UncarriedCell> Uncarried;
    /// The list of functions is empty, which a file cannot say.
    bool WithoutFunctions = false;
    int Species = 0;

    /// The texts that are lost when this is saved, without those that only opening may change.
    std::vector<UncarriedCell> lostBySaving() const;
    /// Whether both are of one project, whatever the three levels are, which no file holds.
    bool isSameProjectAs(const ProjectCopy& other) const;
};

/// A cell or box in words, as a planner knows it: "Habitat types", "3 Reed bed", "Area", "0,5". Row and Column are
/// empty for a box.
struct CellInWords {
    std::string Table;
    std::string Row;
    std::string Column;
    std::string Text;

    bool operator==(const CellInWords&) const = default;
};

/// What a project command has come to, told to whoever keeps copies of the project. Told from within the command.
enum class ProjectStep {
    Left,    ///< New or Open is about to give the form another project, whatever becomes of that
    Opened,  ///< a file was read; the text is its path
    Saving,  ///< a file is about to be written, which empties it first; the text is its path
    Saved,   ///< a file was written; the text is its path
    Broken,  ///< a save has failed half-way: the file at the path, the project's own as a rule, is cut short
    GivenUp  ///< the user wants to exit without saving what has changed
};
