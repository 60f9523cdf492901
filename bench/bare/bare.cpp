// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The floor that brenica-batch is measured against: one run on plain arrays, with no form, no tables and no questions.
//   brenica-bare PROJECT.brn RESULTS.txt
// It reads a complete project with continuous home ranges, scores and selects with a margin of error of 0 and the other
// levels of a new project, takes the top species wherever the planner would be asked, and writes the same results file
// as brenica-batch --error-margin 0 --results, byte for byte.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <numeric>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using std::size_t;
using Numbers = std::vector<double>;
using Names = std::vector<std::string_view>;

constexpr double Margin = 0;
constexpr double ThreatRepresentation = 0.5;
constexpr double HighestStatus = 1;
constexpr size_t Criteria = 5;
enum Criterion : size_t { Heterogeneity, Area, Vulnerability, Functionality, SocioEconomics };

struct Project {
    Names Species, Habitats, Zones, Threats;
    Numbers HabitatThresholds, ZoneThresholds;
    Numbers HabitatLevels, ZoneLevels;       // species × units
    Numbers Urgency, Probability;            // of each threat
    Numbers Severity, Recovery, Proportion;  // species × threats
    Numbers HomeRange, Occupied, Status;
    Names Dispersal, Connectivity;
    std::vector<Numbers> Functions, SocioEconomic;
};

std::string readFile(const char* path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error(std::string(path) + ": cannot be opened");
    file.seekg(0, std::ios::end);
    std::string content(static_cast<size_t>(file.tellg()), '\0');
    file.seekg(0);
    file.read(content.data(), static_cast<std::streamsize>(content.size()));
    return content;
}

Names splitNames(std::string_view values) {
    Names names;
    for (size_t start = 0; start <= values.size();) {
        const size_t end = std::min(values.find(',', start), values.size());
        names.push_back(values.substr(start, end - start));
        start = end + 1;
    }
    return names;
}

Numbers splitNumbers(std::string_view values) {
    Numbers numbers;
    numbers.reserve(values.size() / 2 + 1);
    const char* const last = values.data() + values.size();
    for (const char* first = values.data(); first < last; ++first) {
        if (*first >= '0' && *first <= '9' && (first + 1 == last || first[1] == ',')) {
            numbers.push_back(*first++ - '0');  // nearly all grades
            continue;
        }
        double number = 0;
        const auto [end, error] = std::from_chars(first, last, number);
        if (error != std::errc() || (end != last && *end != ','))
            throw std::runtime_error("a grade is no number: the project is not complete");
        numbers.push_back(number);
        first = end;
    }
    return numbers;
}

Project readProject(std::string_view content) {
    Project project;
    const std::pair<std::string_view, Names*> names[] = {
        {"Common Name", &project.Species},       {"Habitat Type", &project.Habitats},
        {"Jurisdictional Unit", &project.Zones}, {"Land Use", &project.Threats},
        {"Area Dispersal", &project.Dispersal},  {"Area Connectivity", &project.Connectivity}};
    const std::pair<std::string_view, Numbers*> numbers[] = {
        {"Habitat UseLevel", &project.HabitatThresholds},
        {"MZone UseLevel", &project.ZoneThresholds},
        {"Urgency", &project.Urgency},
        {"Probability of occurence", &project.Probability},
        {"HeteroHabitat Population", &project.HabitatLevels},
        {"HeteroJU Individual", &project.ZoneLevels},
        {"Home ranges", &project.HomeRange},
        {"Landscape Occupied", &project.Occupied},
        {"Conservation Status", &project.Status},
        {"VulnerabilitybySpecies Severity", &project.Severity},
        {"VulnerabilitybySpecies Recovery", &project.Recovery},
        {"VulnerabilitybySpecies Proportion", &project.Proportion}};
    while (!content.empty()) {
        const size_t end = content.find("\r\n");
        const std::string_view line = content.substr(0, end);
        content.remove_prefix(end == std::string_view::npos ? content.size() : end + 2);
        const size_t equals = line.find(" = ");
        if (equals == std::string_view::npos) continue;
        const std::string_view key = line.substr(0, equals);
        const std::string_view values = line.substr(equals + 3);
        for (const auto& [name, target] : names) {
            if (key == name) *target = splitNames(values);
        }
        for (const auto& [name, target] : numbers) {
            if (key == name) *target = splitNumbers(values);
        }
        if (key.starts_with("Function") && key != "Functions")
            project.Functions.push_back(splitNumbers(values));
        if (key.starts_with("Socio-Econ")) project.SocioEconomic.push_back(splitNumbers(values));
    }
    return project;
}

double rounded(double value, double powerOfTen) { return std::nearbyint(value * powerOfTen) / powerOfTen; }

/// To three places, as scores are shown and read back.
double shown(double score) { return rounded(score, 1000); }

void appendWhole(std::string& text, long number) {
    char digits[24];
    text.append(digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr);
}

void append(std::string& text, double number) {
    const auto thousandths = static_cast<long>(std::min(number, 1e12) * 1000 + 0.5);
    if (number < 0 || static_cast<double>(thousandths) / 1000 != number) {
        char digits[400];
        const auto end =
            std::to_chars(std::begin(digits), std::end(digits), number, std::chars_format::general, 15);
        text.append(digits, end.ptr);
        return;
    }
    appendWhole(text, thousandths / 1000);
    long rest = thousandths % 1000;
    if (rest > 0) text += '.';
    for (long place = 100; rest > 0; rest %= place, place /= 10)
        text += static_cast<char>('0' + rest / place);
}

/// Everything that is worked out once, before the first pick.
struct Scores {
    Numbers ThreatScores;    // species × threats, as they count in sums
    Numbers ThreatsShown;    // the same to two places, as they are compared
    Numbers MostThreatened;  // for each threat the highest score of any species
    std::array<Numbers, Criteria> Normalised;
    Numbers Aggregate;         // to three places
    std::vector<size_t> Rank;  // the species of each rank
};

Numbers threatScores(const Project& project) {
    const size_t threats = project.Threats.size();
    Numbers scores(project.Severity.size());
    for (size_t row = 0; row < scores.size(); row += threats) {
        for (size_t t = 0; t < threats; ++t) {
            scores[row + t] = (project.Urgency[t] + project.Recovery[row + t]) * project.Severity[row + t] *
                              project.Proportion[row + t] * project.Probability[t];
        }
    }
    return scores;
}

double sumOfRow(const Numbers& table, size_t row, size_t columns) {
    const auto first = table.begin() + static_cast<std::ptrdiff_t>(row * columns);
    return std::accumulate(first, first + static_cast<std::ptrdiff_t>(columns), 0.0);
}

double sumOver(const std::vector<Numbers>& columns, size_t species) {
    double sum = 0;
    for (const Numbers& column : columns) sum += column[species];
    return sum;
}

Scores scoresOf(const Project& project) {
    const size_t species = project.Species.size();
    const size_t threats = project.Threats.size();
    Scores scores;
    scores.ThreatScores = threatScores(project);
    scores.MostThreatened.assign(threats, 0);
    scores.ThreatsShown.reserve(scores.ThreatScores.size());
    for (size_t s = 0; s < species; ++s) {
        for (size_t t = 0; t < threats; ++t) {
            const double score = scores.ThreatScores[s * threats + t];
            scores.ThreatsShown.push_back(score == 0 ? 0 : rounded(score, 100));
            scores.MostThreatened[t] = std::max(scores.MostThreatened[t], scores.ThreatsShown.back());
        }
    }
    const double largest =
        std::max(0.0, *std::max_element(project.HomeRange.begin(), project.HomeRange.end()));
    std::array<double, Criteria> maxima{};
    for (Numbers& column : scores.Normalised) column.resize(species);
    for (size_t s = 0; s < species; ++s) {
        const double habitats = sumOfRow(project.HabitatLevels, s, project.Habitats.size());
        const double area = (project.Dispersal[s] == "Y" ? 1.0 : 0.0) +
                            (project.Connectivity[s] == "Y" ? 1.0 : 0.0) +
                            (largest > 0 ? project.HomeRange[s] * 3.0 / largest : 0.0) + project.Occupied[s];
        const double threatened = rounded(sumOfRow(scores.ThreatScores, s, threats), 100);
        const std::array<double, Criteria> raw = {
            habitats + habitats + sumOfRow(project.ZoneLevels, s, project.Zones.size()), area,
            (1.0 - project.Status[s]) + threatened, sumOver(project.Functions, s),
            sumOver(project.SocioEconomic, s)};
        for (size_t c = 0; c < Criteria; ++c) {
            maxima[c] = std::max(maxima[c], raw[c]);
            scores.Normalised[c][s] = c <= Vulnerability ? shown(raw[c]) : raw[c];
        }
    }
    Numbers sums(species);
    for (size_t s = 0; s < species; ++s) {
        for (size_t c = 0; c < Criteria; ++c) {
            double& score = scores.Normalised[c][s];
            score = maxima[c] > 0 ? shown(score / maxima[c]) : 0;
            sums[s] += score;
        }
        scores.Aggregate.push_back(shown(sums[s]));
    }
    scores.Rank.resize(species);
    std::iota(scores.Rank.begin(), scores.Rank.end(), size_t{0});
    // Of equal sums the later species has the better rank.
    std::stable_sort(scores.Rank.begin(), scores.Rank.end(),
                     [&](size_t a, size_t b) { return sums[a] < sums[b]; });
    std::reverse(scores.Rank.begin(), scores.Rank.end());
    return scores;
}

/// Whether sums of the values are the same in any order: all are multiples of a power of two, and small.
bool sumExactly(const Numbers& values) {
    return std::all_of(values.begin(), values.end(), [](double value) {
        const double parts = value * 1024;
        return std::abs(parts) < 1e9 && parts == static_cast<double>(static_cast<long>(parts));
    });
}

/// The units of one kind: which of them each species represents, and what it would add of those not covered yet.
struct Units {
    Units(size_t species, size_t count, const Numbers& values, auto represents)
        : Count(count), Values(values), Exact(sumExactly(values)), Represented(species * count) {
        for (size_t s = 0; s < species; ++s) {
            int added = 0;
            for (size_t u = 0; u < count; ++u) added += Represented[s * count + u] = represents(s, u);
            Added.push_back(added);
            Sums.push_back(sumOfRow(values, s, count));
        }
        Uncovered.resize(count);
        std::iota(Uncovered.begin(), Uncovered.end(), size_t{0});
    }

    /// Covers what the species represents; the others' counts and sums follow.
    void coverBy(size_t species, const std::vector<size_t>& others) {
        std::vector<size_t> covered;
        std::erase_if(Uncovered, [&](size_t u) {
            if (Represented[species * Count + u] == 0) return false;
            covered.push_back(u);
            return true;
        });
        if (covered.empty()) return;
        for (const size_t s : others) {
            for (const size_t u : covered) {
                Added[s] -= Represented[s * Count + u];
                Sums[s] -= Values[s * Count + u];
            }
            if (!Exact) sumAnew(s);
        }
    }
    void sumAnew(size_t species) {
        Sums[species] = 0;
        for (const size_t u : Uncovered) Sums[species] += Values[species * Count + u];
    }

    size_t Count;
    const Numbers& Values;  // species × units: levels, or threat scores
    bool Exact;
    std::vector<unsigned char> Represented;
    std::vector<size_t> Uncovered;
    std::vector<int> Added;  // by each species
    Numbers Sums;            // of the values of what is uncovered
};

struct Row {
    size_t Species;
    double Aggregate = 0;
    std::array<double, Criteria> Scores{};
    std::array<int, 3> Added{};
    char Mark = ' ';

    bool addsNothing() const { return Added == std::array<int, 3>{}; }
};

class Selection {
public:
    Selection(const Project& project, const Scores& scores)
        : project_(project),
          scores_(scores),
          habitats_(project.Species.size(), project.Habitats.size(), project.HabitatLevels,
                    [&](size_t s, size_t u) {
                        return project.HabitatLevels[s * project.Habitats.size() + u] >=
                               project.HabitatThresholds[u];
                    }),
          zones_(project.Species.size(), project.Zones.size(), project.ZoneLevels,
                 [&](size_t s, size_t u) {
                     return project.ZoneLevels[s * project.Zones.size() + u] >= project.ZoneThresholds[u];
                 }),
          threats_(project.Species.size(), project.Threats.size(), scores.ThreatScores,
                   [&](size_t s, size_t t) {
                       return ThreatRepresentation * scores.MostThreatened[t] <=
                              scores.ThreatsShown[s * project.Threats.size() + t];
                   }) {
        for (size_t s = 0; s < project.Species.size(); ++s) {
            (project.Status[s] <= HighestStatus ? left_ : Excluded).push_back(s);
        }
    }

    void run() {
        for (bool first = true; first || (!allCovered() && !left_.empty()); first = false) pass(first);
    }
    bool allCovered() const {
        return habitats_.Uncovered.empty() && zones_.Uncovered.empty() && threats_.Uncovered.empty();
    }

    std::vector<size_t> Excluded;
    std::vector<size_t> Suite;
    std::vector<std::vector<Row>> Passes;
    const std::vector<size_t>& uncovered(int kind) const {
        return kind == 0 ? habitats_.Uncovered : kind == 1 ? zones_.Uncovered : threats_.Uncovered;
    }

private:
    void pass(bool first) {
        std::vector<Row> block;
        block.reserve(left_.size());
        for (const size_t s : left_) block.push_back(first ? firstRow(s) : laterRow(s));
        if (!first) normalise(block);
        std::stable_sort(block.begin(), block.end(),
                         [](const Row& a, const Row& b) { return a.Aggregate > b.Aggregate; });
        if (!first) omit(block);
        const auto top =
            std::find_if(block.begin(), block.end(), [](const Row& row) { return row.Mark != 'X'; });
        if (top == block.end()) throw std::runtime_error("no species is left: the run ends in an error");
        Row& pick = *top;
        markMargin(block, pick);
        std::erase(left_, pick.Species);
        for (Units* units : {&habitats_, &zones_, &threats_}) units->coverBy(pick.Species, left_);
        pick.Mark = pick.addsNothing() ? 'X' : 'S';
        if (pick.Mark == 'S') Suite.push_back(pick.Species);
        Passes.push_back(std::move(block));
    }

    Row firstRow(size_t s) const {
        Row row{s, scores_.Aggregate[s], {}, added(s)};
        for (size_t c = 0; c < Criteria; ++c) row.Scores[c] = scores_.Normalised[c][s];
        return row;
    }
    Row laterRow(size_t s) {
        Row row = firstRow(s);
        recalculate(row.Scores[Heterogeneity], highest_[0],
                    habitats_.Sums[s] + habitats_.Sums[s] + zones_.Sums[s]);
        recalculate(row.Scores[Vulnerability], highest_[1], (1 - project_.Status[s]) + threats_.Sums[s]);
        return row;
    }
    static void recalculate(double& score, double& highest, double raw) {
        score = shown(raw);
        if (raw > highest) highest = score;
    }
    /// By the highest scores of all passes so far.
    void normalise(std::vector<Row>& block) const {
        for (Row& row : block) {
            auto& [h, a, v, f, s] = row.Scores;
            h = highest_[0] <= 0 ? 0 : shown(h / highest_[0]);
            v = highest_[1] <= 0 ? 0 : shown(v / highest_[1]);
            row.Aggregate = shown(h + v + a + f + s);
        }
    }
    void omit(std::vector<Row>& block) {
        for (Row& row : block) {
            if (!row.addsNothing()) continue;
            row.Mark = 'X';
            std::erase(left_, row.Species);
        }
    }
    /// With a single species left nobody looks for others within the margin.
    void markMargin(std::vector<Row>& block, Row& pick) const {
        if (left_.size() <= 1) return;
        for (Row* row = &pick; row != block.data() + block.size(); ++row) {
            if (row->Mark != 'X' && pick.Aggregate - row->Aggregate <= Margin / 100 * pick.Aggregate)
                row->Mark = 'M';
        }
    }
    std::array<int, 3> added(size_t s) const {
        return {habitats_.Added[s], zones_.Added[s], threats_.Added[s]};
    }

    const Project& project_;
    const Scores& scores_;
    Units habitats_, zones_, threats_;
    std::vector<size_t> left_;
    std::array<double, 2> highest_{};
};

constexpr std::string_view LineEnd = "\r\n";

/// Mark and name on 27 characters.
void appendName(std::string& text, char mark, std::string_view name) {
    constexpr size_t Width = 27;
    size_t characters = 2;
    size_t bytes = 0;
    for (; bytes < name.size(); ++bytes) {
        const bool starts = (static_cast<unsigned char>(name[bytes]) & 0xC0) != 0x80;
        if (starts && characters == Width) break;
        characters += starts;
    }
    text.append({mark, ' '}).append(name.substr(0, bytes)).append(Width - characters, ' ');
}

void appendList(std::string& text, std::string_view prefix, const Names& names,
                const std::vector<size_t>& which) {
    if (which.empty()) return;
    text += prefix;
    for (size_t i = 0; i < which.size(); ++i) text.append(i > 0 ? ", " : "").append(names[which[i]]);
    text += LineEnd;
}

std::string results(const Project& project, const Scores& scores, const Selection& selection) {
    std::string text;
    size_t rows = 0;
    for (const std::vector<Row>& block : selection.Passes) rows += block.size() + 1;
    text.reserve(rows * 100 + scores.Rank.size() * 50);
    if (const size_t excluded = selection.Excluded.size(); excluded > 0) {
        text += excluded == 1
                    ? "The following species was excluded due to its"
                    : "The following " + std::to_string(excluded) + " species was excluded due to their";
        text += " high Current Conservation Status value:\r\n";
        for (const size_t s : selection.Excluded)
            text.append(s == selection.Excluded.front() ? "" : "; ").append(project.Species[s]);
        text += "\r\n\r\n";
    }
    text += "Brenic Species by Rank with Aggregate Score:\r\n";
    for (size_t r = 0; r < scores.Rank.size(); ++r) {
        text.append(std::to_string(r + 1)).append(". ").append(project.Species[scores.Rank[r]]).append("  (");
        append(text, scores.Aggregate[scores.Rank[r]]);
        text += ")\r\n";
    }
    text += "\r\n\r\n";
    append(text, Margin);
    text += " % Error margin\r\n";
    append(text, ThreatRepresentation);
    text += " Threat representation\r\n";
    append(text, HighestStatus);
    text += " Conservation status representation\r\n\r\nThe Suite of Brenic Species:\r\n";
    for (size_t i = 0; i < selection.Suite.size(); ++i)
        text.append(std::to_string(i + 1))
            .append(". ")
            .append(project.Species[selection.Suite[i]])
            .append(LineEnd);
    text +=
        "\r\n\r\nThe complementarity data:\r\nS = selected species\r\nX = excluded species\r\n"
        "M = margin of error species\r\n\t\t\t\t\t\t\t\t\t\tAdditional\r\n"
        "Species             \tRank\tScore\tHetero\tArea\tVuln\tFunc\tSE\tHabs\tMZones\tThreats\r\n";
    for (const std::vector<Row>& block : selection.Passes) {
        for (size_t i = 0; i < block.size(); ++i) {
            const Row& row = block[i];
            appendName(text, row.Mark, project.Species[row.Species]);
            appendWhole(text, static_cast<long>(i) + 1);
            append(text += '\t', row.Aggregate);
            for (const double score : row.Scores) append(text += '\t', score);
            for (const int added : row.Added) appendWhole(text += '\t', added);
            text += "\t\r\n";
        }
        appendName(text, ' ', "");
        text.append(10, '\t').append(LineEnd);
    }
    text += "\r\n\r\n";
    if (selection.allCovered()) {
        text +=
            "All habitat types, management zones and threats are covered by the current suite of brenic species.\r\n";
        return text;
    }
    text += "The following are not covered by the current suite of brenic species:\r\r\n";
    appendList(text, "Habitat types: ", project.Habitats, selection.uncovered(0));
    appendList(text, "Management Zones: ", project.Zones, selection.uncovered(1));
    appendList(text, "Threats: ", project.Threats, selection.uncovered(2));
    return text;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: brenica-bare PROJECT.brn RESULTS.txt\n", stderr);
        return 1;
    }
    try {
        const std::string content = readFile(argv[1]);
        const Project project = readProject(content);
        const Scores scores = scoresOf(project);
        Selection selection(project, scores);
        selection.run();
        std::ofstream out(argv[2], std::ios::binary);
        out << results(project, scores, selection) << std::flush;
        if (!out) throw std::runtime_error(std::string(argv[2]) + ": cannot be written");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brenica-bare: %s\n", error.what());
        return 1;
    }
}
