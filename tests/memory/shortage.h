// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/form_test.h"

/// Makes one step of the program fail: each time that it asks for memory is one, and each call of its desktop.
class Shortage {
public:
    /// Lets `steps` steps succeed and the next one fail, until the shortage is over.
    explicit Shortage(long steps);
    ~Shortage();
    Shortage(const Shortage&) = delete;
    Shortage& operator=(const Shortage&) = delete;

    /// Whether the step that is to fail has come.
    bool happened() const;

    /// Counts a step, and raises what exhausted memory raises where it is the one.
    static void step();
};

/// A desktop without memory of its own.
class ShortPlatform : public ScriptedPlatform {
public:
    void beep() override {
        Shortage::step();
        ScriptedPlatform::beep();
    }
    int textWidth(std::string_view text, const ui::Font& font) const override {
        Shortage::step();
        return ScriptedPlatform::textWidth(text, font);
    }
};
