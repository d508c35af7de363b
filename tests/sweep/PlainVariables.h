#pragma once

#include "Choice.h"

#include <string>
#include <vector>

// The variables that are bound to tags, written out a second time.
namespace gfc::test::sweep {

struct PlainVariable {
    std::string Caption; // in the tree
    char Class = 'F';    // F float, L long, A analog, D digital
    std::string Stem;
};

// In tree order. Whether the record says external diameters is taken from the choice, whatever the standard.
[[nodiscard]] std::vector<PlainVariable> RunInputVariables(const Choice& choice);
[[nodiscard]] std::vector<PlainVariable> RunOutputVariables(const Choice& choice);
[[nodiscard]] std::vector<PlainVariable> GasInputVariables(const Choice& choice);
[[nodiscard]] std::vector<PlainVariable> GasOutputVariables(const Choice& choice);

// The 21 components as they are written in keys, in the order of the file: "GC_C1".
[[nodiscard]] const std::vector<std::string>& ComponentKeys();
// What they are called in lists, in the same order: "Methane".
[[nodiscard]] const std::vector<std::string>& ComponentNames();

} // namespace gfc::test::sweep
