// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/json_table.h"

#include <nlohmann/json.hpp>

#include "method/numbers.h"

namespace {

using Json = nlohmann::ordered_json;

struct Value {
    Json operator()(std::monostate) const { return nullptr; }
    Json operator()(const insight::Fixed& number) const {
        return method::roundTo(number.Value, number.Places);
    }
    Json operator()(const std::string& text) const { return insight::oneLine(text); }
    Json operator()(const std::vector<std::string>& list) const {
        Json array = Json::array();
        for (const std::string& item : list) array.push_back(insight::oneLine(item));
        return array;
    }
    template <class Other>
    Json operator()(const Other& value) const {
        return value;
    }
};

Json rowOf(const std::vector<std::string>& columns, const std::vector<insight::Cell>& cells) {
    Json row = Json::object();
    for (std::size_t i = 0; i < columns.size(); ++i) row[columns[i]] = std::visit(Value(), cells[i]);
    return row;
}

std::string dumped(const Json& object) {
    return object.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

Json jsonOf(const method::Levels& levels) {
    return {{"margin", levels.Margin},
            {"threat_representation", levels.ThreatRepresentation},
            {"conservation_status", levels.ConservationStatus}};
}

void addAnswer(Json& object, const Answer& answer) {
    for (const auto& [name, value] : answer.Facts) object[name] = value;
    object["rows"] = Json::array();
    for (const auto& row : answer.Table.Rows) object["rows"].push_back(rowOf(answer.Table.Columns, row));
}

}  // namespace

std::string jsonText(const method::Levels& levels, const Answer& answer) {
    Json object;
    object["levels"] = jsonOf(levels);
    addAnswer(object, answer);
    return dumped(object);
}

std::string jsonText(const TableOrigin& origin, const Answer& answer) {
    Json object;
    object["project"] = origin.Project;
    object["levels"] = jsonOf(origin.Levels);
    object["exit"] = static_cast<int>(origin.Exit);
    addAnswer(object, answer);
    return dumped(object);
}
