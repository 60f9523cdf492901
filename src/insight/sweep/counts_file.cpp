// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/sweep/counts_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "insight/names.h"

namespace insight {

namespace {

using method::Unit;

constexpr const char* Format = "brenica sweep counts";
constexpr const char* FormatVersion = "1";

constexpr std::array IdentityKeys = {"program",
                                     "project",
                                     "margin",
                                     "threat_representation",
                                     "conservation_status",
                                     "answers",
                                     "vary",
                                     "runs",
                                     "seed",
                                     "p",
                                     "zeros",
                                     "quality",
                                     "shards"};

constexpr std::pair<std::string_view, double method::Levels::*> LevelKeys[] = {
    {"margin", &method::Levels::Margin},
    {"threat_representation", &method::Levels::ThreatRepresentation},
    {"conservation_status", &method::Levels::ConservationStatus}};

/// FNV-1a in 64 bits (Fowler, Noll and Vo 1991), as 16 hexadecimal digits. It finds damage, not forgery.
std::string checksumOf(std::string_view text) {
    std::uint64_t sum = 0xCBF2'9CE4'8422'2325;
    for (const char c : text) sum = (sum ^ static_cast<unsigned char>(c)) * 0x100'0000'01B3;
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4) digits += "0123456789abcdef"[sum >> shift & 15];
    return digits;
}

struct Escape {
    char Character;
    char Letter;
};
constexpr std::array Escapes = {Escape{'\\', '\\'}, Escape{'\t', 't'}, Escape{'\n', 'n'}, Escape{'\r', 'r'}};

std::string escaped(std::string_view text) {
    std::string field;
    for (const char c : text) {
        const auto found =
            std::find_if(Escapes.begin(), Escapes.end(), [c](const Escape& e) { return e.Character == c; });
        if (found == Escapes.end()) {
            field += c;
        } else {
            field += {'\\', found->Letter};
        }
    }
    return field;
}

std::optional<std::string> unescaped(std::string_view field) {
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] != '\\') {
            text += field[i];
            continue;
        }
        const char letter = ++i < field.size() ? field[i] : ' ';
        const auto found = std::find_if(Escapes.begin(), Escapes.end(),
                                        [letter](const Escape& e) { return e.Letter == letter; });
        if (found == Escapes.end()) return std::nullopt;
        text += found->Character;
    }
    return text;
}

std::string yesOrNo(bool value) { return fieldOf(value); }
std::string shortest(double value) { return fieldOf(value); }

std::string variedText(const Varied& vary) {
    std::string text;
    for (const auto& [varied, name] :
         {std::pair{vary.Levels, "levels"}, {vary.Answers, "answers"}, {vary.Grades, "grades"}}) {
        if (!varied) continue;
        if (!text.empty()) text += ' ';
        text += name;
    }
    return text;
}

/// Each as it was understood: the letter of a rule, a number, or "?" for what is neither.
std::string answersText(const std::vector<method::Answer>& answers) {
    std::string text;
    for (const method::Answer& answer : answers) {
        if (!text.empty()) text += ' ';
        if (answer.Way) {
            text += static_cast<char>('a' + static_cast<int>(*answer.Way));
        } else {
            text += answer.Number ? std::to_string(*answer.Number) : "?";
        }
    }
    return text;
}

class CountsWriter {
public:
    void line(const char* key, std::initializer_list<std::string> fields) {
        text_ += key;
        for (const std::string& field : fields) text_ += '\t' + escaped(field);
        text_ += '\n';
    }
    std::string ended() { return withChecksum(std::move(text_)); }

private:
    std::string text_;
};

/// Takes the lines of a file one by one.
class CountsReader {
public:
    CountsReader(const std::string& file, std::string_view text) : text_(text) { shard_.File = file; }

    ShardCounts read() {
        readFormat();
        for (const char* key : IdentityKeys) readIdentity(key);
        shard_.Part.Number = static_cast<std::uint32_t>(count(line("shard", 1)[0], 1, shard_.Part.Of));
        shard_.Counts.Runs = count(line("done", 1)[0], 0, runsOf(shard_.Runs, shard_.Part));
        shard_.Counts.Errors = runs(line("errors", 1)[0]);
        while (next() == "species") readSpecies();
        for (const Unit kind : method::UnitKinds) {
            while (next() == nameOf(kind)) readUnit(kind);
        }
        shard_.Counts.Sizes.assign(shard_.Names.Species.size() + 1, 0);
        while (next() == "size") readSize();
        readEnd();
        return std::move(shard_);
    }

private:
    using Fields = std::vector<std::string>;

    [[noreturn]] void fail(const std::string& reason) const {
        throw CountsFault(shard_.File + ":" + std::to_string(lineNumber_) + ": " + reason);
    }

    /// The key of the line that comes next.
    std::string_view next() const {
        const std::string_view left = text_.substr(position_);
        return left.substr(0, left.find_first_of("\t\n"));
    }

    /// The fields after the key of the next line, which must be this one.
    Fields line(std::string_view key, std::size_t count) {
        ++lineNumber_;
        const std::size_t end = text_.find('\n', position_);
        if (end == std::string_view::npos) fail("the file ends here, before it is complete");
        if (next() != key) fail("'" + std::string(key) + "' is expected here");
        std::string_view rest = text_.substr(position_ + key.size(), end - position_ - key.size());
        position_ = end + 1;
        Fields fields;
        while (!rest.empty()) {
            rest.remove_prefix(1);  // the tab
            const std::size_t length = std::min(rest.find('\t'), rest.size());
            const auto field = unescaped(rest.substr(0, length));
            if (!field) fail("a backslash stands before no t, n, r or backslash");
            fields.push_back(*field);
            rest.remove_prefix(length);
        }
        if (fields.size() != count) {
            fail("'" + std::string(key) + "' has " + std::to_string(fields.size()) + " values, not " +
                 std::to_string(count));
        }
        return fields;
    }

    Count count(const std::string& field, Count least, Count most) const {
        Count value = 0;
        const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), value);
        if (error != std::errc() || end != field.data() + field.size() || value < least || value > most) {
            fail("'" + field + "' is no whole number from " + std::to_string(least) + " to " +
                 std::to_string(most));
        }
        return value;
    }
    double number(const std::string& field) const {
        double value = 0;
        const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), value);
        if (error != std::errc() || end != field.data() + field.size() || !std::isfinite(value))
            fail("'" + field + "' is no number");
        return value;
    }
    /// How many of the runs that were done.
    Count runs(const std::string& field) const { return count(field, 0, shard_.Counts.Runs); }

    void readFormat() {
        if (next() != Format) {
            lineNumber_ = 1;
            fail("no file of the counts of a sweep");
        }
        const std::string version = line(Format, 1)[0];
        if (version != FormatVersion) fail("the file is of version " + version + ", not " + FormatVersion);
    }

    void readIdentity(const char* key) {
        constexpr std::string_view Runs = "runs";
        constexpr std::string_view Shards = "shards";
        const std::string value = line(key, 1)[0];
        for (const auto& [name, level] : LevelKeys) {
            if (key == name) shard_.Levels.*level = number(value);
        }
        if (key == Runs) shard_.Runs = count(value, 0, MostRuns);
        if (key == Shards) shard_.Part.Of = static_cast<std::uint32_t>(count(value, 1, UINT32_MAX));
        shard_.Identity.emplace_back(key, value);
    }

    void readSpecies() {
        const Fields fields = line("species", 2);
        shard_.Names.Species.push_back(fields[0]);
        shard_.Counts.Species.push_back(runs(fields[1]));
    }

    void readUnit(Unit kind) {
        const Fields fields = line(nameOf(kind), 3);
        shard_.Names.Units[kind].push_back(fields[0]);
        shard_.Counts.Uncovered[kind].push_back(runs(fields[1]));
        shard_.Counts.Missed[kind].push_back(runs(fields[2]));
    }

    void readSize() {
        const Fields fields = line("size", 2);
        const Count size = count(fields[0], 0, shard_.Names.Species.size());
        shard_.Counts.Sizes[size] = runs(fields[1]);
    }

    void readEnd() {
        const std::string_view before = text_.substr(0, position_);
        if (line("end", 1)[0] != checksumOf(before)) fail("the file has changed since it was written");
        if (position_ == text_.size()) return;
        ++lineNumber_;
        fail("the file goes on after its end");
    }

    std::string_view text_;
    std::size_t position_ = 0;
    int lineNumber_ = 0;
    ShardCounts shard_;
};

}  // namespace

SweepIdentity identityOf(const SweepOrigin& origin, const method::Levels& levels,
                         const SweepSettings& settings) {
    const std::array values = {origin.Program,
                               origin.Project,
                               shortest(levels.Margin),
                               shortest(levels.ThreatRepresentation),
                               shortest(levels.ConservationStatus),
                               answersText(settings.Answers),
                               variedText(settings.Vary),
                               std::to_string(settings.Runs),
                               std::to_string(settings.Seed),
                               shortest(settings.P),
                               yesOrNo(settings.Zeros),
                               yesOrNo(settings.Quality),
                               std::to_string(settings.Part.Of)};
    static_assert(values.size() == IdentityKeys.size());
    SweepIdentity identity;
    for (std::size_t i = 0; i < values.size(); ++i) identity.emplace_back(IdentityKeys[i], values[i]);
    return identity;
}

std::string countsText(const SweepIdentity& identity, const Shard& part, const SweepNames& names,
                       const SweepCounts& counts) {
    CountsWriter writer;
    const auto text = [](Count value) { return std::to_string(value); };
    writer.line(Format, {FormatVersion});
    for (const auto& [key, value] : identity) writer.line(key.c_str(), {value});
    writer.line("shard", {text(part.Number)});
    writer.line("done", {text(counts.Runs)});
    writer.line("errors", {text(counts.Errors)});
    for (std::size_t s = 0; s < names.Species.size(); ++s)
        writer.line("species", {names.Species[s], text(counts.Species[s])});
    for (const Unit kind : method::UnitKinds) {
        for (std::size_t u = 0; u < names.Units[kind].size(); ++u) {
            writer.line(nameOf(kind), {names.Units[kind][u], text(counts.Uncovered[kind][u]),
                                       text(counts.Missed[kind][u])});
        }
    }
    for (std::size_t size = 0; size < counts.Sizes.size(); ++size) {
        if (counts.Sizes[size] > 0) writer.line("size", {text(size), text(counts.Sizes[size])});
    }
    return writer.ended();
}

std::string withChecksum(std::string lines) { return lines + "end\t" + checksumOf(lines) + '\n'; }

ShardCounts readCounts(const std::string& file, std::string_view text) {
    return CountsReader(file, text).read();
}

}  // namespace insight
