#pragma once

#include <functional>
#include <vector>

namespace torvenhall
{

/// Something beside GameState that the rules remember for as long as the
/// program runs.
template <class Value>
class Remembered
{
public:
    Remembered();
    Remembered(const Remembered&) = delete;
    Remembered& operator=(const Remembered&) = delete;

    Value& operator*() { return value; }
    Value* operator->() { return &value; }

private:
    Value value{};
};

/// Forgets all of it and GameState, as a program that starts anew.
void ResetRules();

/// What ResetRules runs.
std::vector<std::function<void()>>& Resets();

template <class Value>
Remembered<Value>::Remembered()
{
    Resets().emplace_back([this] { value = Value{}; });
}

} // namespace torvenhall
