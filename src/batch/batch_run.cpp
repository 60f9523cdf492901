// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/batch_run.h"

#include <ostream>

#include "batch/messages_file.h"
#include "batch/outputs.h"
#include "batch/scripted_platform.h"
#include "batch/usage_fault.h"
#include "project/frmBrenica.h"
#include "ui/text.h"

namespace {

constexpr int FirstPageOfWalk = 2;
constexpr int LastPageOfWalk = 7;

/// A text with CR and CR LF breaks on one line, or on indented lines of its own.
std::string withBreaks(std::string_view text, std::string_view lineBreak) {
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n') continue;
        if (text[i] != '\r') {
            shown += text[i];
        } else if (text.find_first_not_of("\r\n", i) != std::string_view::npos) {
            shown += lineBreak;
        }
    }
    return shown;
}

void printBox(std::ostream& err, const ShownBox& box) {
    err << box.Title << ": " << withBreaks(box.Text, "\n  ") << '\n';
    if (box.BoxKind != ShownBox::Kind::Message) err << "  > " << box.Answer << '\n';
}

class BatchRun {
public:
    BatchRun(const BatchOptions& options, std::ostream& out, std::ostream& err)
        : options_(options), out_(out), err_(err), form_(platform_, files_, global_) {
        platform_.Answers = options.Answers;
        platform_.OnBox = [this](const ShownBox& box) { printBox(err_, box); };
    }

    ExitCode run() {
        checkLevel(form_.txtErrorMargin, options_.ErrorMargin, "--error-margin");
        checkLevel(form_.txtThreatRep, options_.ThreatRepresentation, "--threat-representation");
        checkLevel(form_.txtCCSRep, options_.ConservationStatus, "--conservation-status");
        Outputs outputs(options_, form_.ExportTables(), err_);
        const ExitCode code = select();
        writeOutputs(outputs, code);
        if (code == ExitDone || code == ExitUnexpectedError) printSuite();
        if (code == ExitDone) printUncovered();
        return code == ExitDone && outputs.failed() ? ExitWrongUsage : code;
    }

private:
    void checkLevel(const ui::TextBox& box, const std::optional<std::string>& level,
                    const char* option) const;
    ExitCode select();
    bool openProject();
    bool sayUnreadable(const std::string& reason, int line = 0);
    void putLevel(ui::TextBox& box, const std::optional<std::string>& level);
    ExitCode walkAndSelect();
    void sayWhatIsMissing();
    void writeOutputs(Outputs& outputs, ExitCode code);
    std::string resultsText();
    std::string tableText(const ExportTable& table);
    void printSuite();
    void printUncovered();

    const BatchOptions& options_;
    std::ostream& out_;
    std::ostream& err_;
    ScriptedPlatform platform_;
    ui::Files files_;
    modGlobal global_;
    frmBrenica form_;
};

void BatchRun::checkLevel(const ui::TextBox& box, const std::optional<std::string>& level,
                          const char* option) const {
    if (!level) return;
    for (const NumberBox& row : form_.NumberBoxes()) {
        if (row.Box != &box) continue;
        // A comma is a mark between thousands; whoever types it here means a decimal one.
        const bool hasComma = level->find(',') != std::string::npos;
        const auto value = ui::tryReal(*level, form_.Separator());
        if (!hasComma && value && *value >= ui::toReal(row.Minimum) && *value <= ui::toReal(row.Maximum))
            return;
        throw UsageFault{std::string(option) + ": '" + *level + "' is no number from " + row.Minimum +
                         " to " + row.Maximum};
    }
}

ExitCode BatchRun::select() {
    try {
        form_.mnuNewProject.UserClick();
        if (!openProject()) return ExitUnreadableProject;
        putLevel(form_.txtErrorMargin, options_.ErrorMargin);
        putLevel(form_.txtThreatRep, options_.ThreatRepresentation);
        putLevel(form_.txtCCSRep, options_.ConservationStatus);
        return walkAndSelect();
    } catch (const std::exception& error) {
        err_ << withBreaks(error.what(), "\n") << '\n';
        return ExitUnexpectedError;
    }
}

/// The form swallows a fault of the file; the files have kept it.
bool BatchRun::openProject() {
    platform_.Files.push_back(options_.Project);
    form_.mnuOpenProject.UserClick();
    const auto& fault = files_.LastFault();
    const bool wasRead = !fault || fault->Line > 0;
    if (wasRead && files_.LinesEnded() == 0)
        return sayUnreadable("no line ends in CR, as those of a project do");
    if (fault)
        return sayUnreadable(withBreaks(fault->Error.Description, " "), fault->ReadWhole ? 0 : fault->Line);
    return global_.ProjectFileName == options_.Project || sayUnreadable("cannot be opened");
}

bool BatchRun::sayUnreadable(const std::string& reason, int line) {
    err_ << ProgramName << ": " << options_.Project;
    if (line > 0) err_ << ':' << line;
    err_ << ": " << reason << '\n';
    return false;
}

void BatchRun::putLevel(ui::TextBox& box, const std::optional<std::string>& level) {
    if (!level) return;
    box.UserFocus();
    box.UserPaste(*level);
}

ExitCode BatchRun::walkAndSelect() {
    for (int page = FirstPageOfWalk; page <= LastPageOfWalk; ++page) {
        form_.tabBrenica.UserSelectTab(page);
        if (form_.CurrentMainTab == page) continue;
        err_ << ProgramName << ": page " << form_.CurrentMainTab
             << " may not be left before its rows are complete\n";
        return ExitNothingToScore;
    }
    if (!form_.cmdComplement.Enabled()) {
        sayWhatIsMissing();
        return ExitNothingToScore;
    }
    form_.cmdComplement.UserClick();
    return ExitDone;
}

/// A gap in the grades has had its message from the form; an empty list has none.
void BatchRun::sayWhatIsMissing() {
    const std::pair<int, const char*> lists[] = {{global_.TotalSpecies, "candidate species"},
                                                 {global_.TotalHabitatTypes, "habitat types"},
                                                 {global_.TotalJurisUnits, "management zones"},
                                                 {global_.TotalLandUses, "human activities"}};
    for (const auto& [count, name] : lists) {
        if (count < 1) err_ << ProgramName << ": nothing to score: the project has no " << name << '\n';
    }
}

/// The messages come first: they are written whatever becomes of the other files.
void BatchRun::writeOutputs(Outputs& outputs, ExitCode code) {
    outputs.writeMessages([&] { return messageLines(platform_.Transcript); });
    if (code == ExitDone) outputs.writeResults([&] { return resultsText(); });
    if (code == ExitUnreadableProject) return;
    for (const ExportTable& table : form_.ExportTables()) {
        if (form_.isExportable(table)) outputs.writeTable(table, [&] { return tableText(table); });
    }
}

/// The form swallows a fault of the export, too.
std::string BatchRun::resultsText() {
    files_.ClearLastFault();
    return gathered([&](const std::string& path) {
        platform_.Files.push_back(path);
        form_.cmdExportResults.UserClick();
        if (files_.LastFault()) throw files_.LastFault()->Error;
    });
}

std::string BatchRun::tableText(const ExportTable& table) {
    return gathered([&](const std::string& path) { form_.SaveTable(table, path); });
}

void BatchRun::printSuite() {
    const ui::Grid& suite = form_.flxBrenicSuite;
    for (int row = 0; row < suite.Rows(); ++row) {
        if (row > 0 && suite.TextMatrix(row, 1).empty()) continue;
        for (int col = 0; col < suite.Cols(); ++col)
            out_ << (col > 0 ? "\t" : "") << suite.TextMatrix(row, col);
        out_ << '\n';
    }
}

/// The selection's own report tells it last.
void BatchRun::printUncovered() {
    out_ << '\n' << withBreaks(platform_.Transcript.back().Text, "\n") << '\n';
}

}  // namespace

ExitCode runBatch(const BatchOptions& options, std::ostream& out, std::ostream& err) {
    try {
        return BatchRun(options, out, err).run();
    } catch (const UsageFault& fault) {
        err << ProgramName << ": " << fault.Text << '\n';
        return ExitWrongUsage;
    }
}
