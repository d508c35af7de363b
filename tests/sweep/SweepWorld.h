#pragma once

#include "Choice.h"
#include "PlainFile.h"
#include "PlainSummary.h"
#include "scenarios/Moves.h"
#include "support/World.h"

namespace gfc::test::sweep {

// The program over station "North", which carries every combination.
struct SweepWorld : World {
    SweepWorld();

    // From the start of the program to the written file; every dialog is answered by hand.
    void TellConfiguration(const Choice& choice);
    // Every page of the summaries, compared with the file that was expected; the model too.
    void TellLook(const Choice& choice, const PlainFile& file);
    [[nodiscard]] std::string WrittenFile() { return Files.Content[ConfigFile("North")]; }

private:
    void TellFirstPage(const Choice& choice);
    void TellPressurePage(const Choice& choice);
    void TellGasPage(const Choice& choice);
    void TellPages(const Choice& choice);
    void TellTree(const Choice& choice);
    void SeeHeadings(const std::vector<std::string>& headings, const std::string& where);
    void SeePage(const PlainPage& page, const std::string& where);
};

} // namespace gfc::test::sweep
