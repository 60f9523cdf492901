// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/batch_run.h"

#include <ostream>

#include "batch/messages_file.h"
#include "batch/outputs.h"
#include "batch/project_run.h"
#include "batch/usage_fault.h"

namespace {

class BatchRun {
public:
    BatchRun(const BatchOptions& options, std::ostream& out, std::ostream& err)
        : options_(options), out_(out), err_(err), project_(options, err) {}

    ExitCode run() {
        Outputs outputs(options_, form_.ExportTables(), err_);
        const ExitCode code = project_.select();
        if (code == ExitUnexpectedError) err_ << withBreaks(project_.error(), "\n") << '\n';
        writeOutputs(outputs, code);
        if (code == ExitDone || code == ExitUnexpectedError) printSuite();
        if (code == ExitDone) printUncovered();
        return code == ExitDone && outputs.failed() ? ExitWrongUsage : code;
    }

private:
    void writeOutputs(Outputs& outputs, ExitCode code);
    void exportResults(const Outputs::Take& take);
    void exportTable(const ExportTable& table, const Outputs::Take& take);
    void printSuite();
    void printUncovered();

    const BatchOptions& options_;
    std::ostream& out_;
    std::ostream& err_;
    ProjectRun project_;
    frmBrenica& form_ = project_.form();
};

/// The messages come first: they are written whatever becomes of the other files.
void BatchRun::writeOutputs(Outputs& outputs, ExitCode code) {
    outputs.writeMessages(
        [&](const Outputs::Take& take) { take(messageLines(project_.platform().Transcript)); });
    if (code == ExitDone) outputs.writeResults([&](const Outputs::Take& take) { exportResults(take); });
    if (code == ExitUnreadableProject) return;
    for (const ExportTable& table : form_.ExportTables()) {
        if (form_.isExportable(table))
            outputs.writeTable(table, [&](const Outputs::Take& take) { exportTable(table, take); });
    }
}

/// The form swallows a fault of the export, too.
void BatchRun::exportResults(const Outputs::Take& take) {
    project_.files().ClearLastFault();
    const auto write = [&](const std::string& path) {
        project_.platform().Files.push_back(path);
        form_.cmdExportResults.UserClick();
        if (project_.files().LastFault()) throw project_.files().LastFault()->Error;
    };
    gather(write, take);
}

void BatchRun::exportTable(const ExportTable& table, const Outputs::Take& take) {
    gather([&](const std::string& path) { form_.SaveTable(table, path); }, take);
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
    out_ << '\n' << withBreaks(project_.platform().Transcript.back().Text, "\n") << '\n';
}

template <class Run>
ExitCode sayingFaults(std::ostream& err, Run run) {
    try {
        return run();
    } catch (const UsageFault& fault) {
        err << ProgramName << ": " << fault.Text << '\n';
        return ExitWrongUsage;
    }
}

}  // namespace

ExitCode runBatch(const BatchOptions& options, std::ostream& out, std::ostream& err) {
    return sayingFaults(err, [&] { return BatchRun(options, out, err).run(); });
}

ExitCode runLastBatch(const BatchOptions& options, std::ostream& out, std::ostream& err) {
    static BatchRun* run = nullptr;  // never taken apart
    return sayingFaults(err, [&] {
        run = new BatchRun(options, out, err);
        return run->run();
    });
}
