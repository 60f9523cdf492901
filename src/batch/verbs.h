// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "batch/verb.h"

/// Each verb; gives its exit code.
int answerUnits(const VerbCall& call);
int answerMinimum(const VerbCall& call);
int answerSuites(const VerbCall& call);
int answerSpecies(const VerbCall& call);
int answerSweep(const VerbCall& call);
int answerMerge(const VerbCall& call);
int answerVerify(const VerbCall& call);
int answerReport(const VerbCall& call);
