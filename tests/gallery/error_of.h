#pragma once

#include <string>

#include "gallery/core/error.h"

/// What the error says that the call ends in; "no error" when it does not.
template <class Call>
std::string ErrorOf(Call call) {
    try {
        call();
    } catch (const gallery::Error& error) {
        return error.what();
    }
    return "no error";
}
