// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// All that the window itself says to its user; everything else that can be read in it is the form's. A "%1" is replaced
/// in its turn.
namespace desktop::own_texts {

// The strip and its buttons.
inline constexpr const char* Strip = "Messages and safety copies";
inline constexpr const char* Close = "Close this message";
inline constexpr const char* OpenIt = "Open it";
inline constexpr const char* DropIt = "Drop it";
inline constexpr const char* TakeBack = "Take it back";
inline constexpr const char* ShowCopies = "Show them";
inline constexpr const char* HideCopies = "Hide them";
inline constexpr const char* ShowCopy = "Show it";
inline constexpr const char* HideCopy = "Hide it";

// The menu of a table, and the tips at a cell that refuses a text: what the cell offers, or how many are left to paste.
inline constexpr const char* Undo = "Undo";
inline constexpr const char* Redo = "Redo";
inline constexpr const char* CopyWithHeadings = "Copy with headings";
inline constexpr const char* SortByColumn = "Sort by this column";
inline constexpr const char* ExplainCell = "What is this?";
inline constexpr const char* Refused = "“%1” is not accepted here.";
inline constexpr const char* RefusedByList = "“%1” is not accepted here. Choose %2.";
inline constexpr const char* PasteRefused = "“%1” is not accepted here: %2 not pasted.";
inline constexpr const char* PasteNotTaken = "Nothing can be entered here: %1 not pasted.";
inline constexpr const char* PasteTooLarge = "The table ends here: %1 not pasted.";

// A box among many of one command, and the list of those that were answered at once.
inline constexpr const char* BoxNumber = "Box %1 of this command";
inline constexpr const char* OkToRest = "OK to the &rest that only tell";
inline constexpr const char* OneTaken = "1 box of this command was answered with OK at once:";
inline constexpr const char* SeveralTaken = "%1 boxes of this command were answered with OK at once:";
inline constexpr const char* CopyAll = "&Copy all";

// Several things of which one is meant.
inline constexpr const char* LastOfList = "%1 or %2";

// A copy: the project, when it was written, and what it holds.
inline constexpr const char* NewProject = "A new project";
inline constexpr const char* NamelessCopy = "A safety copy";
inline constexpr const char* Today = "today %1";
inline constexpr const char* Yesterday = "yesterday %1";
inline constexpr const char* OnDay = "%1, %2";
inline constexpr const char* DayFormat = "d MMMM yyyy";
inline constexpr const char* Offer = "%1, %2, %3 species: not saved.";
inline constexpr const char* OfferOfSaved =
    "%1, %2, %3 species: saved, but the file could not carry every cell.";
inline constexpr const char* OfferOfDamaged =
    "%1, %2: this safety copy is damaged. It is kept, but cannot be opened.";
inline constexpr const char* NotDropped = "%1 It could not be dropped.";
inline constexpr const char* Dropped = "%1, %2: dropped.";
inline constexpr const char* OfferDetails = "%1\nThe safety copy is %2";
inline constexpr const char* SeveralOffers = "%1 safety copies hold work that was not saved.";
inline constexpr const char* OneOther = "1 other safety copy, of work that was left without saving.";
inline constexpr const char* SeveralOthers = "%1 other safety copies, of work that was left without saving.";
inline constexpr const char* NoCopies = "There are no safety copies to open.";

// A command that failed: the file, the reason, and what is true from now on.
inline constexpr const char* NotSaved = "%1 was not saved: %2.";
inline constexpr const char* NotSavedWhole = "%1 was not saved whole: %2.";
inline constexpr const char* SavedNowhere =
    "Nothing was saved: Yes in that question names no file. Save the project first, then answer No.";
inline constexpr const char* NotOpened = "%1 could not be opened: %2.";
inline constexpr const char* NotReadFurther = "%1 could not be read beyond line %2: %3.";
inline constexpr const char* NotShownWhole = "%1 was read, but cannot be shown whole: %2.";
inline constexpr const char* WindowEmptied = "The window was emptied before.";
inline constexpr const char* ReadSoFar = "The window shows what stands before that line.";
inline constexpr const char* SaveWouldReplace = "A save still proposes %1.";
inline constexpr const char* NotExported = "%1 was not written: %2.";
inline constexpr const char* NotExportedWhole = "%1 was not written whole: %2.";
inline constexpr const char* NotImported = "%1 could not be imported: %2.";
inline constexpr const char* SavingBlocked = "Nothing can be saved before Brenica is started again.";
inline constexpr const char* ReadingBlocked =
    "Until Brenica is started again, do not use Open or Import: Open empties the window and fails, Import ends the "
    "program. Results cannot be exported.";
inline constexpr const char* WorkIsKept = "Your work is kept in a safety copy.";

// What else the form does not say.
inline constexpr const char* NotKept = "No safety copy is kept: %1. Save often.";
inline constexpr const char* NotCarried = "The saved file cannot hold %1 as entered: %2.";
inline constexpr const char* OneCell = "1 cell";
inline constexpr const char* SeveralCells = "%1 cells";
inline constexpr const char* Cell = "%1, %2, %3 (“%4”)";
inline constexpr const char* Box = "%1 (“%2”)";
inline constexpr const char* MoreCells = "%1 and %2 more";
inline constexpr const char* NotCarriedKept = "All is kept in the window and in the safety copy.";
inline constexpr const char* ScoresFirst = "Go to Aggregate Scores first.";
inline constexpr const char* StatusFirst = "A species has no conservation status (CCS). Enter it first.";
inline constexpr const char* FirstGap = "The first gap: %1, %2, %3.";
inline constexpr const char* SpeciesFirst = "There is no species to select from.";

// What the program prints before it has a window.
inline constexpr const char* Usage =
    "Usage: brenica [FILE]\n"
    "Opens the window of Brenica, with the project FILE where one is given.\n"
    "\n"
    "  -h, --help      print this and exit\n"
    "  -v, --version   print the version and exit\n"
    "\n"
    "The options of Qt are known, too. brenica-batch works without a window.\n";
inline constexpr const char* Version = "brenica %1\n";
inline constexpr const char* OneProjectOnly = "One project can be opened at a time.";
inline constexpr const char* NamelessProject = "The name of the project is empty.";
inline constexpr const char* NoDisplay =
    "There is no display to open the window on. brenica-batch works without one.";

// The menu of insight: the project and the file of its report, and why there is none.
inline constexpr const char* Insight = "&Insight";
inline constexpr const char* ReportOnSuite = "&Report on the suite…";
inline constexpr const char* WhatReportSays = "&What a report says";
inline constexpr const char* ReportFile = "%1 report.html";
inline constexpr const char* ReportFilter = "Web pages (*.html)|*.html";
inline constexpr const char* MakingReport = "The report on %1 is being made.";
inline constexpr const char* SoFar = "So far: %1.";
inline constexpr const char* ShowWhatIsKnown = "Show what is known so far";
inline constexpr const char* Cancel = "Cancel";
inline constexpr const char* FinishingReport =
    "The report on %1 is being finished with what is known so far.";
inline constexpr const char* ReportCancelled = "The report on %1 was cancelled. Nothing was written.";
inline constexpr const char* ReportIsMade = "The report on %1 is made: %2, in %3.";
inline constexpr const char* NoBrowserForReport = "There is no browser to show it in.";
inline constexpr const char* HomeFolder = "your home folder";
inline constexpr const char* OpenReport = "Open the report";
inline constexpr const char* ReportIsGone = "It is no longer there.";
inline constexpr const char* SaveElsewhere = "Save it elsewhere";
inline constexpr const char* ReportIsBeingMade =
    "The report on %1 is being made; the line at the edge of the window tells how far it is. Cancel it there before you "
    "begin another one.";
inline constexpr const char* ChangedSinceSelection =
    "The project has changed since the suite on view was selected. Make the report of the project as it is now?";
inline constexpr const char* NotOverProject = "%1 is the project itself. Choose another name for the report.";
inline constexpr const char* NoReport = "No report can be made. %1";
inline constexpr const char* RowsNotComplete = "Rows on the page “%1” are not complete.";
inline constexpr const char* ListsAreEmpty = "The project has no %1.";
inline constexpr const char* CalculationFails =
    "The calculation ends in an error, as where a grade is blank or no number:\n%1";

// The menu of help.
inline constexpr const char* Help = "He&lp";
inline constexpr const char* Guide = "&Guide";
inline constexpr const char* Examples = "&Examples";
inline constexpr const char* AboutExamples = "&What they show";
inline constexpr const char* About = "&About Brenica";
inline constexpr const char* NoGuide = "The guide is not installed.";
inline constexpr const char* NoBrowser = "There is no browser to show the guide in. It lies in %1.";
inline constexpr const char* AboutText =
    "Brenica %1\n"
    "Plans the conservation of a landscape by a small suite of species.\n"
    "\n"
    "Copyright 2026 The Brenica developers\n"
    "Free software under the GNU General Public License, version 3 or later; without any warranty.\n"
    "\n"
    "It is built on\n%2";
inline constexpr const char* AboutLibrary = "%1 %2 (%3)";

}  // namespace desktop::own_texts
