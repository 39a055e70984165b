// What is worth asking of a car, in which order, given what it has told so far. No state: the next
// question follows from the conversation alone.
#pragma once

#include "conversation.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

// What a question is about, as progress and report name it.
enum class topic {
    adapter,
    supported,
    status,
    codes,
    readings,
    frames,
    identity,
    tests,
};
std::string_view topic_name(topic one);

struct question {
    std::string request;
    topic about;
    // For all tries together.
    std::chrono::milliseconds bound{8000};
};

// All that is wanted by now, what has been asked already included. More may follow from answers.
std::vector<question> wanted(const conversation& so_far);
