#include "PlainBindings.h"

#include "PlainVariables.h"

namespace gfc::test::sweep {

namespace {

// Tags go to the variables in tree order, each class from the top of its own list. A long tag is not used up.
void Bind(const std::vector<PlainVariable>& variables, Pools& pools, Bindings& bindings) {
    for (const auto& variable : variables) {
        if (variable.Class == 'F')
            bindings[variable.Stem] = TakeFirst(pools.Floats);
        if (variable.Class == 'L')
            bindings[variable.Stem] = pools.Longs.at(0);
        if (variable.Class == 'A')
            bindings[variable.Stem] = TakeFirst(pools.Analogs);
        if (variable.Class == 'D')
            bindings[variable.Stem] = TakeFirst(pools.Digitals);
    }
}

} // namespace

PlainTag TakeFirst(std::deque<PlainTag>& pool) {
    const PlainTag tag = pool.at(0);
    pool.pop_front();
    return tag;
}

Bindings BindRun(const Choice& choice, Pools& pools) {
    Bindings bindings;
    Bind(RunInputVariables(choice), pools, bindings);
    Bind(RunOutputVariables(choice), pools, bindings);
    Bind(GasInputVariables(choice), pools, bindings);
    Bind(GasOutputVariables(choice), pools, bindings);
    return bindings;
}

} // namespace gfc::test::sweep
