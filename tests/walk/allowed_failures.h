// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

/// What a user does.
enum class Deed {
    TypeKeys,
    Paste,
    Focus,
    AddRows,
    AddBins,
    RemoveRow,
    MoveRow,
    EditCell,
    MoveCell,
    ChooseItem,
    ClickOption,
    ClickCheckBox,
    SelectPage,
    SelectCriterion,
    SelectSummary,
    SelectGraph,
    MouseMove,
    MouseDown,
    Resize,
    NewProject,
    OpenProject,
    SaveProject,
    Exit,
    Import,
    Export,
    GraphCommand,
    Select,
    ExportResults,
    Count,
};

inline constexpr std::array<const char*, static_cast<std::size_t>(Deed::Count)> DeedNames = {
    "type keys",     "paste",           "focus",         "add rows",         "add breakpoints",
    "remove row",    "move row",        "edit cell",     "move to cell",     "choose item",
    "click option",  "click check box", "select page",   "select criterion", "select summary",
    "select graph",  "mouse move",      "mouse down",    "resize",           "new project",
    "open project",  "save project",    "exit",          "import",           "export",
    "graph command", "select species",  "export results"};

inline const char* nameOf(Deed deed) { return DeedNames[static_cast<std::size_t>(deed)]; }

/// The failures that may end the program while all grids are in step, by the deed that they come of.
struct AllowedFailure {
    Deed What;
    int Number;
    const char* Source;  // as the report names it, without the running application's name
};

inline constexpr AllowedFailure AllowedFailures[] = {
    // Removing a breakpoint takes the item behind its label from the bins' box; for the last one there is none.
    {Deed::RemoveRow, 5, "Brenica.RemoveBin"},
    // The gates of the parameter page remove blank breakpoints by the same way.
    {Deed::SelectPage, 5, "Brenica.RemoveBin"},
    {Deed::ClickOption, 5, "Brenica.RemoveBin"},
    // The box for new breakpoints is never held within bounds or reset: what is empty, no number or too large for a
    // whole number fails when it is written back.
    {Deed::TypeKeys, 13, "Brenica.txtTotalBins_Change"},
    {Deed::TypeKeys, 6, "Brenica.txtTotalBins_Change"},
    {Deed::Paste, 13, "Brenica.txtTotalBins_Change"},
    {Deed::Paste, 6, "Brenica.txtTotalBins_Change"},
    // For the same reason it can ask for more rows than there is room for.
    {Deed::AddBins, 7, "FlexGridUtilities.UpdateFlexGrid"},
    {Deed::AddBins, 6, "FlexGridUtilities.UpdateFlexGrid"},
    // An imported area that is no number stays as it stands until the areas are summed.
    {Deed::SelectPage, 13, "FlexGridUtilities.GetAreaTotal"},
    {Deed::SelectPage, 6, "FlexGridUtilities.GetAreaTotal"},
    // The scores take a blank for a failure. The gate lets a blank level of use pass where another species uses the
    // unit, does not look at the conservation status, and tests a home range for a blank and "0" only, while the
    // summary table takes any text for one.
    {Deed::SelectPage, 13, "BrenicaUtilities.GetHeteroScore"},
    {Deed::SelectPage, 13, "BrenicaUtilities.GetVulnerabilityScore"},
    {Deed::SelectPage, 13, "BrenicaUtilities.ScaleHomeRanges"},
    {Deed::SelectPage, 6, "BrenicaUtilities.ScaleHomeRanges"},
    // The form converts every level of use that a unit asks for before it selects; import takes any text for one.
    {Deed::Select, 13, "Brenica.cmdComplement_Click"},
    {Deed::Select, 6, "Brenica.cmdComplement_Click"},
    // When no species is left in the race the scan for the pick runs into the blank row that closes the block.
    {Deed::Select, 13, "BrenicaUtilities.cmdComplement_Click"},
    // A single survivor keeps the count of the last margin of error, which reads past the block into its blank row.
    {Deed::Select, 13, "BrenicaUtilities.SelectErrorMarginSpecies"},
    // A file that cannot be opened ends an import and an export with the report; so does the file number that a failed
    // open has left open.
    {Deed::Import, 53, "Brenica.ImportData"},
    {Deed::Import, 55, "Brenica.ImportData"},
    {Deed::Import, 76, "Brenica.ImportData"},
    {Deed::Export, 76, "Brenica.MenuSelectionDataGrid"},
};

/// Of a damaged file, or one that was saved with a comma in a cell, rows and columns that a procedure counts on may be
/// missing or hold anything, whether it was read to its end or as far as a bad line. Every procedure may then fail in
/// these ways, and in no other.
inline constexpr int FailuresOfADamagedFile[] = {5, 6, 9, 13, 53, 55, 76, 380};

inline bool isAllowed(Deed deed, int number, std::string_view source, bool damagedFile) {
    if (damagedFile) {
        for (const int allowed : FailuresOfADamagedFile) {
            if (allowed == number) return true;
        }
        return false;
    }
    for (const AllowedFailure& allowed : AllowedFailures) {
        if (allowed.What == deed && allowed.Number == number && allowed.Source == source) return true;
    }
    return false;
}

/// What a report of an unexpected failure says; no source where the text has not the form of one: four lines, the last
/// with a quotation mark and a point at its end, and a line end behind.
struct Report {
    int Number = 0;
    std::string Source;
    std::string Description;
};

inline Report readReport(const std::string& text) {
    constexpr std::string_view Marks[] = {
        "Unexpected error in Brenica System.\r\nSource: Brenica.",
        "\r\nInternal Error number: ", ".\r\nInternal Error description: \"", "\".\r\n"};
    std::string parts[3];
    std::size_t position = Marks[0].size();
    if (text.compare(0, position, Marks[0]) != 0) return {};
    for (int i = 0; i < 3; ++i) {
        const std::string_view mark = Marks[i + 1];
        const std::size_t end = i == 2 ? text.rfind(mark) : text.find(mark, position);
        if (end == std::string::npos || end < position) return {};
        parts[i] = text.substr(position, end - position);
        position = end + mark.size();
    }
    if (position != text.size() || parts[1].find_first_not_of("0123456789") != std::string::npos) return {};
    return {parts[1].empty() ? 0 : std::stoi(parts[1]), parts[0], parts[2]};
}
