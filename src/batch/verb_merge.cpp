// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <ostream>
#include <system_error>

#include "batch/command_line.h"
#include "batch/input_file.h"
#include "batch/json_table.h"
#include "batch/project_question.h"
#include "batch/usage_fault.h"
#include "batch/verbs.h"
#include "insight/sweep/shard_merge.h"

namespace {

insight::ShardCounts readShard(const std::string& path) {
    try {
        return insight::readCounts(path, readWhole(path));
    } catch (const std::system_error& error) {
        throw UnreadableFault{path + ": cannot be read: " + error.code().message()};
    }
}

/// A fault may name several shards, a line each.
void sayFaults(std::ostream& err, const std::string& lines) {
    std::size_t start = 0;
    while (start < lines.size()) {
        const std::size_t end = std::min(lines.find('\n', start), lines.size());
        sayLine(err, lines.substr(start, end - start));
        start = end + 1;
    }
}

}  // namespace

int answerMerge(const VerbCall& call) {
    std::vector<std::string> files;
    VerbCommandLine commandLine(call.Verb);
    commandLine.add_option("counts", files, "what sweep --counts wrote")->type_name("FILE")->required();
    if (const auto code = parseArguments(commandLine, call.Arguments, call.Out, call.Err)) return *code;
    try {
        std::vector<insight::ShardCounts> shards;
        for (const std::string& file : files) shards.push_back(readShard(file));
        const Answer answer{sweepTable(shards.front().Names, mergedCounts(shards))};
        call.Out << (commandLine.Json ? jsonText(shards.front().Levels, answer)
                                      : insight::tabSeparated(answer.Table));
        return ExitDone;
    } catch (const insight::CountsFault& fault) {
        throw UnreadableFault{fault.what()};
    } catch (const insight::MergeFault& fault) {
        sayFaults(call.Err, fault.what());
        return ExitWrongUsage;
    }
}
