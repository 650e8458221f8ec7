#include "support/faults.h"

#include <atomic>

namespace
{
struct Plan {
    std::atomic<int> count = 0;
    std::atomic<int> failing = 0; ///< as `count` counts; 0: none
    std::atomic<bool> allBehindFail = false;
};
Plan plans[4]; // by Calls

Plan& PlanOf(Calls kind)
{
    return plans[static_cast<int>(kind)];
}
}

void FailCall(Calls kind, int number, bool andAllBehind)
{
    Plan& plan = PlanOf(kind);
    plan.failing = number != 0 ? plan.count + number : 0;
    plan.allBehindFail = andAllBehind;
}

int CallCount(Calls kind)
{
    return PlanOf(kind).count;
}

bool IsToFail(Calls kind)
{
    Plan& plan = PlanOf(kind);
    const int call = ++plan.count;
    const int failing = plan.failing;
    return failing != 0 && (call == failing || (call > failing && plan.allBehindFail));
}
