// Lets an allocation of the program fail, as if memory had run out there.
//
// The test program's operator new is replaced, for the libraries it loads, too. What fails does so as the
// standard one would: the new-handler is called, and the nothrow form gives NULL.
#pragma once

#include <functional>

// While it lives, the nth allocation (from 1) of any thread fails, once; those after it succeed again.
class FailAllocation
{
public:
    explicit FailAllocation(int nth);
    ~FailAllocation();
    FailAllocation(const FailAllocation&) = delete;
    FailAllocation& operator=(const FailAllocation&) = delete;

    static bool HasFailed(); // did it come to that since the last one was made?
};

// How many allocations the call makes.
int CountAllocations(const std::function<void()>& call);

// Runs the call again and again, letting its first allocation fail, then its second, and so on, until it runs
// through without a failure; and each time what checks the outcome, with memory enough. Returns how many times it
// failed.
int FailEveryAllocation(
    const std::function<void()>& call, const std::function<void()>& check = [] {});
