// The edition that a test runs in; the first one again when it is over.
#pragma once

#include "config/Edition.h"

class UseEdition
{
  public:
    explicit UseEdition(int edition = tessary::LATEST_EDITION) { tessary::SetEdition(edition); }
    ~UseEdition() { tessary::SetEdition(1); }
    UseEdition(const UseEdition&) = delete;
    UseEdition& operator=(const UseEdition&) = delete;
};
