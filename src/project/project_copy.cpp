// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "project/project_copy.h"

#include <algorithm>
#include <array>
#include <span>

#include "project/constant_tables.h"
#include "project/frmBrenica.h"
#include "project/project_file.h"
#include "ui/file_numbers.h"
#include "ui/text.h"

namespace {

constexpr std::string_view LineEnd = "\r\n";
/// Stands for the only name of a list where that is blank: without it there would be no list.
constexpr std::string_view BlankName = "?";
/// The species that is on view once a file was opened.
constexpr int ShownSpecies = 1;
constexpr int LastDataQuality = 6;
/// Stands for a comma, so that a number with a decimal comma stays that number.
constexpr char CommaStandIn = '.';

/// A level that is no part of the file, with its text in a new project.
struct Level {
    ui::TextBox frmBrenicaControls::*Box;
    std::string_view Default;
};
constexpr std::array Levels = {Level{&frmBrenicaControls::txtErrorMargin, "5"},
                               Level{&frmBrenicaControls::txtThreatRep, "0.5"},
                               Level{&frmBrenicaControls::txtCCSRep, "1"}};

/// Without the list that such a line makes, nothing that belongs to the list has a place.
bool makesList(std::string_view key) {
    using namespace projectfile;
    constexpr std::array<std::string_view, 5> Lists = {CommonName, HabitatType, JurisUnit, LandUse,
                                                       Functions};
    return std::find(Lists.begin(), Lists.end(), key) != Lists.end();
}

/// Puts the cells of one line into a text that opens to as many cells, and notes those that it does not give back.
class CarryingLine {
public:
    CarryingLine(const FileLine& line, ProjectCopy& copy) : line_(line), copy_(copy) {}

    void append() {
        appendLine(copy_.Text, line_, [this](std::string& text, int row, std::string_view cell) {
            if (cell.size() == 1 && isPlain(cell.front()) && row != ShownSpecies) {
                text.push_back(cell.front());
            } else {
                appendCell(text, row, cell);
            }
        });
        copy_.Text += LineEnd;
    }

private:
    static bool isPlain(char character) { return character != ',' && character != '\r' && character != ' '; }

    void appendCell(std::string& text, int row, std::string_view cell) {
        const bool onlyName = line_.Rows == 1 && ui::isBlank(cell) && makesList(line_.Key);
        const bool endsOpening = row == ShownSpecies && !isShownAsLevel(cell);
        if (onlyName || endsOpening || isLost(row, cell)) {
            copy_.Uncarried.push_back({line_.Grid->Name(), row, line_.Column, std::string(cell), true});
        }
        if (onlyName) text += BlankName;
        if (onlyName || endsOpening) return;
        const std::size_t start = text.size();
        text += cell;
        const auto cellText = text.begin() + static_cast<std::ptrdiff_t>(start);
        std::replace(cellText, text.end(), ',', CommaStandIn);
        std::replace(cellText, text.end(), '\r', '\n');
    }

    /// The data quality level of the first criterion is chosen in its box when the file is opened: a text that is no
    /// level ends the opening.
    bool isShownAsLevel(std::string_view cell) const {
        const bool isChosen = line_.Column == 1 && line_.Key.starts_with(projectfile::DataQuality);
        if (cell.empty() || !isChosen) return true;
        const auto level = ui::tryReal(cell, line_.Grid->Form().Separator());
        return level && *level >= -0.5 && *level <= LastDataQuality + 0.5;
    }

    /// Separators, and the blanks at the ends of the whole line.
    bool isLost(int row, std::string_view cell) const {
        if (cell.find_first_of(",\r") != std::string_view::npos) return true;
        if (cell.empty()) return false;
        const bool first = row == 1 && line_.First.empty();
        return (first && cell.front() == ' ') || (row == line_.Rows && cell.back() == ' ');
    }

    const FileLine& line_;
    ProjectCopy& copy_;
};

/// Notes cells that the file may well hold: opening shows the first species in boxes, which write back what they make
/// of its texts.
void noteShown(ProjectCopy& copy, const ui::Grid& grid, int lastCol) {
    for (int col = 1; col <= lastCol; ++col) {
        copy.Uncarried.push_back(
            {grid.Name(), ShownSpecies, col, std::string(grid.TextMatrix(ShownSpecies, col)), false});
    }
}

bool isListCell(const UncarriedCell& cell) { return !cell.Grid.starts_with("flxSummary"); }

std::vector<UncarriedCell> inGrids(const std::vector<UncarriedCell>& cells) {
    std::vector<UncarriedCell> found;
    std::copy_if(cells.begin(), cells.end(), std::back_inserter(found),
                 [](const UncarriedCell& cell) { return cell.Row > 0; });
    return found;
}

}  // namespace

std::vector<UncarriedCell> ProjectCopy::lostBySaving() const {
    std::vector<UncarriedCell> lost;
    std::copy_if(Uncarried.begin(), Uncarried.end(), std::back_inserter(lost),
                 [](const UncarriedCell& cell) { return cell.LostBySaving; });
    return lost;
}

bool ProjectCopy::isSameProjectAs(const ProjectCopy& other) const {
    return Text == other.Text && WithoutFunctions == other.WithoutFunctions &&
           inGrids(Uncarried) == inGrids(other.Uncarried);
}

ProjectCopy frmBrenica::TakeCopy() const {
    ProjectCopy copy;
    copy.Species = global_.TotalSpecies;
    copy.WithoutFunctions = global_.TotalFunctions == 0;
    writeLines([&](const FileLine& line) { CarryingLine(line, copy).append(); });
    for (int bin = 1; HomeRangeType != 2 && bin <= global_.TotalBins; ++bin) {
        copy.Uncarried.push_back(
            {flxBins.Name(), bin, list::Name, std::string(flxBins.TextMatrix(bin, list::Name)), true});
    }
    for (const Level& level : Levels) {
        const ui::TextBox& box = this->*level.Box;
        if (box.Text() != level.Default) copy.Uncarried.push_back({box.Name(), 0, 0, box.Text(), true});
    }
    if (copy.Species > 0) {
        noteShown(copy, flxSummary(summary::Area), area::Occupied);
        noteShown(copy, flxSummary(summary::Vulnerability), vulnerability::ConservationStatus);
        noteShown(copy, flxSummary(summary::DataQuality), TotalCriteria);
    }
    return copy;
}

void frmBrenica::UserOpenFile(const std::string& path) {
    if (files_.IsOpen(ui::filenumber::Shared)) return;
    cdgFileDialog.Chosen = path;
    mnuOpenProject.UserClick();
    cdgFileDialog.Chosen.reset();
}

/// Names come first, since the species' selector takes them over and then shows the first species.
void frmBrenica::RestoreCopy(const ProjectCopy& copy, const std::string& path) {
    ProjectLoading = true;
    for (int row = global_.TotalFunctions; copy.WithoutFunctions && row >= 1; --row)
        RemoveFunction(RowNumbers(&row, 1));
    for (const UncarriedCell& cell : copy.Uncarried) {
        if (isListCell(cell)) restoreCell(cell);
    }
    rebuildUserBins();
    UpdateSpeciesList();
    for (const UncarriedCell& cell : copy.Uncarried) {
        if (!isListCell(cell)) restoreCell(cell);
    }
    ProjectLoading = false;
    if (path.empty()) {
        global_.ProjectFileName.clear();
        Caption(ui::ApplicationTitle);
    } else {
        showProjectPath(path);
    }
    ProjectChanged = true;
}

ui::Grid* frmBrenica::gridNamed(std::string_view name) const {
    for (ui::Control* control : Controls()) {
        if (control->Kind() == ui::ControlKind::Grid && control->Name() == name) {
            return static_cast<ui::Grid*>(control);
        }
    }
    return nullptr;
}

ui::TextBox* frmBrenica::levelNamed(std::string_view name) {
    for (const Level& level : Levels) {
        ui::TextBox& box = this->*level.Box;
        if (box.Name() == name) return &box;
    }
    return nullptr;
}

/// A level of use and a rating stand in a second table, too.
void frmBrenica::restoreCell(const UncarriedCell& cell) {
    if (ui::TextBox* level = levelNamed(cell.Grid)) return level->Text(cell.Text);
    ui::Grid* grid = gridNamed(cell.Grid);
    if (grid == nullptr) return;
    if (grid == &flxBins) makeRoomForBin(cell.Row);
    const bool isThere =
        cell.Row >= 1 && cell.Row < grid->Rows() && cell.Column >= 1 && cell.Column < grid->Cols();
    if (!isThere) return;
    grid->TextMatrix(cell.Row, cell.Column, cell.Text);
    for (const ParameterList& list : parameterLists_) {
        if (!list.HasLevelOfUse || grid != &flxSummary(list.LongMember) || cell.Column != use::Level)
            continue;
        const int units = global_.*list.Total;
        flxSummary(list.WideMember)
            .TextMatrix((cell.Row - 1) / units + 1, (cell.Row - 1) % units + 1, cell.Text);
    }
    if (grid != &flxSummary(summary::ThreatsBySpecies) || cell.Column < threat::Severity) return;
    const int threats = global_.TotalLandUses;
    const int row =
        blockRow((cell.Row - 1) % threats + 1, global_.TotalSpecies, (cell.Row - 1) / threats + 1);
    flxSummary(summary::SpeciesByThreat).TextMatrix(row, cell.Column - 2, cell.Text);
}

/// Breakpoints of a project whose home ranges are not of that type are not in the file at all.
void frmBrenica::makeRoomForBin(int row) {
    if (row != global_.TotalBins + 1 || HomeRangeType == 2) return;
    flxBins.Rows(row + 1);
    flxBins.TextMatrix(row, list::Number, ui::toText(row));
    global_.TotalBins = row;
}

std::vector<CellInWords> frmBrenica::LostInWords(const ProjectCopy& copy) const {
    std::vector<CellInWords> words;
    if (copy.WithoutFunctions) words.push_back({flxFunctions.AccessibleName(), "", "", ""});
    for (const UncarriedCell& cell : copy.Uncarried) {
        if (cell.LostBySaving) words.push_back(inWords(cell));
    }
    return words;
}

CellInWords frmBrenica::inWords(const UncarriedCell& cell) const {
    const ui::Grid* grid = gridNamed(cell.Grid);
    if (grid == nullptr) {
        const ui::TextBox* box = const_cast<frmBrenica*>(this)->levelNamed(cell.Grid);
        return {box != nullptr ? box->AccessibleName() : cell.Grid, "", "", cell.Text};
    }
    CellInWords words = InWords(*grid, cell.Row, cell.Column);
    words.Text = cell.Text;
    return words;
}

CellInWords frmBrenica::InWords(const ui::Grid& grid, int row, int col) const {
    return {grid.AccessibleName(), rowInWords(grid, row), std::string(grid.TextMatrix(0, col)),
            std::string(grid.TextMatrix(row, col))};
}

/// A row of a list by its number; one of a table by the species and, where there is one row for each, by the unit.
std::string frmBrenica::rowInWords(const ui::Grid& grid, int row) const {
    const auto nameOf = [](const ui::Grid& names, int at) {  // the lists may be shorter than the tables
        return at < names.Rows() ? std::string(names.TextMatrix(at, list::Name)) : std::string();
    };
    if (!grid.Name().starts_with("flxSummary")) return ui::toText(row);
    for (const ParameterList& list : parameterLists_) {
        if (list.LongMember == ParameterList::NoMember || &grid != &flxSummary(list.LongMember)) continue;
        const int units = std::max(global_.*list.Total, 1);
        return nameOf(flxCandidateSpecies, (row - 1) / units + 1) + ", " +
               nameOf(*list.Grid, (row - 1) % units + 1);
    }
    return nameOf(flxCandidateSpecies, row);
}
