#pragma once

#include "platform/vcl/streaming/Reader.h"

namespace vcl {

template <class Step>
bool TReader::Try(TFormPosition position, TFormProblemKind kind, Step step) {
    try {
        step();
        return true;
    } catch (const EFormError& error) {
        if (!CollectProblems) throw;
        FProblems.push_back(error.Problem());
    } catch (const Exception& error) {
        Report(FPlace.Problem(kind, position, error.Message()));
    }
    return false;
}

}  // namespace vcl
