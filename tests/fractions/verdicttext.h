#pragma once
// A verdict as one line, "right: …", "wrong: …" or "refused: …", so that one
// table column holds both what a check decides and what it tells the child.
#include "fractions/verdict.h"

inline QString said(const Verdict& v)
{
    static const char* const kKinds[] = {"right", "wrong", "refused"};
    return QLatin1String(kKinds[v.kind]) + QLatin1String(": ") + v.statement;
}
