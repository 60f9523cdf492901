// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/messages_file.h"

#include <nlohmann/json.hpp>

namespace {

const char* nameOf(ShownBox::Kind kind) {
    switch (kind) {
        case ShownBox::Kind::Message: return "message";
        case ShownBox::Kind::Question: return "question";
        case ShownBox::Kind::Input: return "input";
    }
    return "";
}

}  // namespace

std::string messageLines(std::span<const ShownBox> boxes) {
    std::string lines;
    for (const ShownBox& box : boxes) {
        nlohmann::ordered_json line;
        line["kind"] = nameOf(box.BoxKind);
        line["title"] = box.Title;
        line["text"] = box.Text;
        if (box.BoxKind != ShownBox::Kind::Message) line["answer"] = box.Answer;
        // An answer from the command line may hold bytes that are no UTF-8.
        lines += line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
    }
    return lines;
}
