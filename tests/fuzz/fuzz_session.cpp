// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz_session.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

#include "entry/modErrorHandling.h"
#include "project/frmBrenica.h"
#include "project/project_file.h"
#include "scripted/scripted_platform.h"
#include "ui/text.h"

namespace {

constexpr int FirstPage = 2;
constexpr int LastPage = 7;
constexpr double MostCells = 20'000;

/// A file of this process, gone at its end.
class SessionFile {
public:
    SessionFile() {
        std::string name = (std::filesystem::temp_directory_path() / "brenica-fuzz-XXXXXX").string();
        const int descriptor = mkstemp(name.data());
        if (descriptor < 0) throw std::runtime_error(name + ": cannot be made");
        close(descriptor);
        path_ = name;
    }
    ~SessionFile() { std::remove(path_.c_str()); }
    SessionFile(const SessionFile&) = delete;
    SessionFile& operator=(const SessionFile&) = delete;

    const std::string& path() const { return path_; }
    void write(std::string_view content) const {
        std::ofstream stream(path_, std::ios::binary | std::ios::trunc);
        stream.write(content.data(), static_cast<std::streamsize>(content.size()));
        if (!stream.flush()) throw std::runtime_error(path_ + ": cannot be written");
    }

private:
    std::string path_;
};

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\r'), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!text.empty() && text.front() == '\n') text.remove_prefix(1);
    }
    return lines;
}

/// What stands behind the first word of a line that the reader ignores.
std::optional<std::string> steering(std::string_view line, std::string_view word) {
    if (line.find('=') != std::string_view::npos || line.substr(0, word.size()) != word) return std::nullopt;
    return std::string(line.substr(word.size()));
}

/// Four lines: what happened, the source with the application's name, the number, the description in quotes.
bool isReport(const std::string& description) {
    constexpr std::string_view Parts[] = {
        "Unexpected error in Brenica System.\r\nSource: Brenica.",
        "\r\nInternal Error number: ", ".\r\nInternal Error description: \""};
    std::size_t position = 0;
    for (const std::string_view part : Parts) {
        const std::size_t found = description.find(part, position);
        if (found == std::string::npos || (position == 0 && found > 0)) return false;
        position = found + part.size();
    }
    constexpr std::string_view End = "\".\r\n";
    return description.size() >= position + End.size() && description.ends_with(End);
}

class Session {
public:
    Session(const std::string& path, std::string_view project) : path_(path) {
        for (const std::string_view line : linesOf(project)) {
            if (const auto answer = steering(line, "answer ")) platform_.Answers.push_back(*answer);
            if (const auto margin = steering(line, "margin ")) margin_ = margin;
        }
    }

    SessionEnd run(SessionDepth depth) {
        const bool opened = open();
        if (depth == SessionDepth::Open) return opened ? SessionEnd::OnlyOpened : SessionEnd::Unreadable;
        const SessionEnd end = walkAndSelect();
        return opened ? end : SessionEnd::Unreadable;
    }

private:
    /// The form swallows a fault of the file; the files keep it.
    bool open() {
        platform_.Files.push_back(path_);
        form_.mnuOpenProject.UserClick();
        const auto& fault = files_.LastFault();
        if (!fault) {
            require(global_.ProjectFileName == path_, "the open ended early, without a fault");
            require(!form_.ProjectLoading, "the project is loading for ever");
            return true;
        }
        require(fault->Path == path_, "a fault of another file: " + fault->Path);
        require(fault->Line > 0, "a fault without a line: " + fault->Error.Description);
        require(fault->Error.Number != 0 && !fault->Error.Description.empty(), "a fault without a cause");
        return false;
    }

    SessionEnd walkAndSelect() {
        try {
            if (margin_) {
                form_.txtErrorMargin.UserFocus();
                form_.txtErrorMargin.UserPaste(*margin_);
            }
            for (int page = FirstPage; page <= LastPage; ++page) {
                form_.tabBrenica.UserSelectTab(page);
                if (form_.CurrentMainTab != page) return SessionEnd::PageRefused;
                lookAround(page);
            }
            return select();
        } catch (const ui::RunTimeError& error) {
            require(error.Number == ReportedErrorNumber && isReport(error.Description),
                    "no report: " + error.Source + ": " + error.Description);
            return SessionEnd::UnexpectedReport;
        }
    }

    SessionEnd select() {
        if (!form_.cmdComplement.Enabled()) {
            require(!global_.ScoresCalculated, "scores, but no selection");
            return SessionEnd::NothingToScore;
        }
        form_.cmdComplement.UserClick();
        require(!platform_.Transcript.empty() && platform_.Transcript.back().Title == "Selection Report",
                "a selection without its report");
        for (ui::OptionButton& view : form_.optCompResults) view.UserClick();
        platform_.Files.emplace_back("/dev/null");
        form_.cmdExportResults.UserClick();
        platform_.Files.emplace_back("/dev/null");
        form_.mnuSaveProject.UserClick();
        return SessionEnd::Selected;
    }

    void lookAround(int page) {
        if (page == 3) {
            form_.cbxSpeciesName.UserChoose(form_.cbxSpeciesName.ListCount() - 1);
            visitTabs(form_.tabCriteria);
        }
        if (page == 4) visitTabs(form_.tabCriteriaSummary);
        if (page == 5) visitTabs(form_.tabGraphSummary);
    }

    static void visitTabs(ui::TabStrip& tabs) {
        for (int i = static_cast<int>(tabs.Tabs().size()); i >= 1; --i) tabs.UserSelectTab(i);
    }

    static void require(bool holds, const std::string& fault) {
        if (!holds) throw Undescribed(fault);
    }

    std::string path_;
    std::optional<std::string> margin_;
    ScriptedPlatform platform_;
    ui::Files files_;
    modGlobal global_;
    frmBrenica form_{platform_, files_, global_};
};

}  // namespace

SessionEnd runSession(std::string_view project, SessionDepth depth) {
    static const SessionFile file;
    file.write(project);
    const std::clock_t start = std::clock();
    const SessionEnd end = Session(file.path(), project).run(depth);
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    if (seconds > SessionSeconds) throw Undescribed("the session took " + std::to_string(seconds) + " s");
    return end;
}

bool isSmall(std::string_view project) {
    double species = 0;
    double others = 0;
    for (const std::string_view line : linesOf(project)) {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        const std::string_view key = ui::trim(line.substr(0, equals));
        // A list that is read twice may leave the rows of both in the tables.
        const double values = static_cast<double>(std::count(line.begin(), line.end(), ',')) + 1;
        if (ui::equalsIgnoringCase(key, projectfile::CommonName)) species += values;
        for (const char* list : {projectfile::HabitatType, projectfile::JurisUnit, projectfile::LandUse,
                                 projectfile::Functions}) {
            if (ui::equalsIgnoringCase(key, list)) others += values;
        }
    }
    return species * others <= MostCells;
}
