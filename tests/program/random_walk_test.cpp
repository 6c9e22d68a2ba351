// A user who does anything at any moment, for 50,000 actions: after each of them the program is as it has to be.
// TARVEX_SEED repeats a walk; TARVEX_STEPS makes it longer or shorter.

#include "program/walk/walk.h"
#include "support/random_seed.h"

#include <gtest/gtest.h>

namespace tarvex {

namespace {

/// Stops at the first failure. `meanwhile` comes before each step.
void goForAWalk(Walk& walk, std::span<const Action> all, unsigned steps,
                const std::function<void(Walk&)>& meanwhile = {})
{
    std::string last;
    for (unsigned step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
        if (meanwhile) meanwhile(walk);
        const Action& action = nextAction(walk.random, all);
        SCOPED_TRACE("step " + std::to_string(step) + ": " + action.name + ", on tab " +
                     std::to_string(walk.side().tab) + ", after" + last);
        walk.dialogues.boxes.clear();
        const Texts before = textsOf(walk);
        action.run(walk);
        check(walk, before);
        shorten(walk);
        last = last.substr(last.size() > 200 ? last.find(',', last.size() - 200) : 0) + ", " + action.name;
    }
}

} // namespace

TEST(RandomWalk, AfterAnyActionTheProgramIsAsItHasToBe)
{
    const unsigned steps = fromEnvironment("TARVEX_STEPS", 50'000);
    Walk walk(randomSeed());
    goForAWalk(walk, usualActions(), steps);
    if (HasFailure()) return;
    EXPECT_GE(walk.broughtBack, steps / 500) << "there was something to bring back";
}

TEST(RandomWalk, ADamagedJournalCostsNoMoreThanWhatFollowsTheDamage)
{
    const unsigned steps = fromEnvironment("TARVEX_STEPS", 10'000);
    Walk walk(randomSeed());
    goForAWalk(walk, actionsWithDamage(), steps);
    if (HasFailure()) return;
    EXPECT_GE(walk.damagedJournals, steps / 500) << "there was damage";
}

TEST(RandomWalk, WhatAnotherProgramWritesIsNotLost)
{
    const unsigned steps = fromEnvironment("TARVEX_STEPS", 20'000);
    Walk walk(randomSeed());
    goForAWalk(walk, usualActions(), steps, [](Walk& user) {
        if (below(user.random, 20) == 0) writeOutside(user);
    });
    if (HasFailure()) return;
    EXPECT_GE(walk.keptOutside, steps / 1000) << "there was something to keep";
}

TEST(RandomWalk, WhatStripsDoLosesNothingThatAnybodyWrote)
{
    const unsigned steps = fromEnvironment("TARVEX_STEPS", 10'000);
    Walk walk(randomSeed());
    goForAWalk(walk, usualActions(), steps, [](Walk& user) {
        if (below(user.random, 10) == 0) writeOutside(user);
        if (below(user.random, 40) == 0) removeOutside(user);
        if (below(user.random, 5) == 0) answerStrips(user);
    });
    if (HasFailure()) return;
    EXPECT_GE(walk.stripsAnswered, steps / 100) << "there was something to answer";
}

} // namespace tarvex
