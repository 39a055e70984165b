// What to ask a car, and in which order, given its answers so far. No state: the next question
// depends only on the conversation.
#pragma once

#include "conversation.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

// What a question is about.
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
    // Time limit for all tries.
    std::chrono::milliseconds bound{8000};
};

// All questions known so far, including those already asked. Answers may add more.
std::vector<question> wanted(const conversation& so_far);
