// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <set>
#include <sstream>
#include <string>
#include <string_view>

#include "batch/batch_run.h"
#include "fuzz_session.h"
#include "walk/complete_project.h"

namespace {

constexpr std::size_t MostBytes = 2048;
constexpr int MostDeeds = 150;

/// Each choice of the walk is made by the next bytes.
void walk(std::string_view bytes) {
    Walker walker(bytes);
    walker.run(MostDeeds);
    require(walker.End != WalkEnd::Defect, walker.Trouble);
}

/// A run of brenica-batch, its project and its options.
class FuzzedBatchRun {
public:
    explicit FuzzedBatchRun(std::string_view bytes) : random_(bytes) {
        writeProject();
        for (auto* level :
             {&options_.ErrorMargin, &options_.ThreatRepresentation, &options_.ConservationStatus}) {
            if (random_.chance(50)) *level = random_.chance(80) ? "0.5" : randomNumberText(random_);
        }
        for (int i = random_.below(6); i > 0; --i)
            options_.Answers.push_back(random_.pick({"yes", "no", "a", "b", "c", "d", "e", "2", "", "x"}));
        options_.Results = output("results.txt");
        options_.Messages = output("messages.jsonl");
        options_.Tables = output("tables");
    }

    void run() {
        std::ostringstream out;
        std::ostringstream err;
        const ExitCode code = runBatch(options_, out, err);
        require(code == ExitDone || !err.str().empty(), "a failure without a word");
        if (code == ExitUnexpectedError) requireAllowed(err.str());
        if (code == ExitDone) requireDone(out.str());
        requireNoLitter();
    }

private:
    void writeProject() {
        RandomProject project(random_, {random_.between(1, 6), random_.between(1, 5), random_.between(1, 4),
                                        random_.between(1, 4)});
        if (random_.chance(15)) project.turnIntoVersion1();
        damaged_ = random_.chance(30);
        options_.Project = folder_.file("project.brn");
        const std::string text = project.text.text();
        writeFile(options_.Project, damaged_ ? damaged(random_, text) : text);
    }

    std::optional<std::string> output(const std::string& name) {
        switch (random_.below(4)) {
            case 0: return std::nullopt;
            case 1: return random_.pick({folder_.file("missing/" + name), options_.Project + "/" + name});
            default: return folder_.file(name);
        }
    }

    bool lies(const std::optional<std::string>& path) const {
        return path && std::filesystem::path(*path).parent_path() == folder_.path();
    }

    void requireAllowed(const std::string& said) const {
        const std::size_t start = said.rfind("Unexpected error in Brenica System.");
        require(start != std::string::npos, "no report: " + said);
        std::string text;
        for (const char character : said.substr(start))
            text += character == '\n' ? "\r\n" : std::string(1, character);
        while (text.ends_with("\r\n\r\n")) text.resize(text.size() - 2);
        const Report report = readReport(text);
        require(isAllowed(Deed::SelectPage, report.Number, report.Source, damaged_) ||
                    isAllowed(Deed::Select, report.Number, report.Source, damaged_),
                "no rule allows " + text);
    }

    void requireDone(const std::string& printed) const {
        require(printed.find('\t') != std::string::npos, "no suite: " + printed);
        for (const auto& path : {options_.Results, options_.Messages, options_.Tables})
            require(!lies(path) || std::filesystem::exists(*path), "no output: " + path.value_or(""));
    }

    void requireNoLitter() const {
        const std::set<std::string> known = {"project.brn", "results.txt", "messages.jsonl", "tables",
                                             "missing"};
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
            const std::string name = entry.path().filename().string();
            require(known.count(name) == 1, "left behind: " + name);
        }
    }

    TemporaryFolder folder_;
    Random random_;
    BatchOptions options_;
    bool damaged_ = false;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Takes any bytes for what a user does, or for a run of brenica-batch: the first one says for which. What is neither
/// in step nor an allowed failure ends in an uncaught exception.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int KeepNot = -1;
    constexpr char Batch = 'b';
    if (size < 2 || size > MostBytes) return KeepNot;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (bytes.front() == Batch) {
        FuzzedBatchRun(bytes.substr(1)).run();
    } else {
        walk(bytes.substr(1));
    }
    return 0;
}
