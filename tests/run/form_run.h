#pragma once

#include "run/form/working_copy.h"

/// A computed run on the run form, without its screen: laid into the form's working copies behind a new header.
class FormRun final {
public:
    explicit FormRun(const run::Run& computed, double round_value = 0);

    /// "1=500 (1:300 2:200)" per line, line and row with their numbers, then the total.
    [[nodiscard]] std::string text();

    run::WorkingCopy copy;

private:
    static db::Connection& server();
};
