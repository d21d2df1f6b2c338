// The steps of a walk: small values that depend on nothing but the seed and their number, so that any of them can be
// left out. What a step means follows from where it finds the views.
#pragma once

#include "tests/walk/Scene.h"

#include <cstdint>

struct Step
{
    std::size_t kind;
    unsigned a, b, c, d;
    bool pixels; // are compared afterwards
    int View() const { return static_cast<int>(a % kViews); }
};

Step MakeStep(std::uint64_t seed, int number);

class Walker
{
public:
    Walker(std::uint64_t seed, bool bTells) : scene(seed), m_bTells(bTells) {} // telling: on the standard output

    // What does not hold afterwards; "" when all does.
    std::string Do(const Step& step);

    // For the steps.
    Scene scene;
    bool dragIsPlanned = false;
    bool Follows() const { return m_nAstray == 0; }
    void GoAstray(unsigned nSteps); // the model does not follow for so many steps more
    void SetRude(bool bRude);
    void Say(const std::string& text) const;
    void Announce(Op op, Atom* pAtom, Atom* pContainer);
    void LetTimePass(DWORD nMilliseconds);
    Atom* PickContainer(unsigned n) const;
    Atom* PickAtom(unsigned n) const; // in the world
    Atom* NewAtom(unsigned n);
    CPoint PickPoint(int view, unsigned n, unsigned m); // mostly on something, sometimes anywhere

private:
    void HeedField();

    const bool m_bTells;
    int m_nAstray = 0;
};

struct StepKind
{
    const char* pszName;
    unsigned nOften;
    void (*perform)(Walker& walker, const Step& step);
};
using StepKinds = std::vector<StepKind>;
const StepKinds& UserSteps();
const StepKinds& HostSteps();
