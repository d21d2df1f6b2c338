// Looks through a folder and all below it for names, on a thread of its own.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace editor
{

// One search at a time. User-interface thread only, with a desktop installed; nobody waits for a thread that the disk
// holds up.
class NameSearch
{
public:
    static constexpr std::size_t kMost = 1000; // that are found; then it ends

    struct Found
    {
        std::string folder; // below the one where it began, without a slash at its ends; empty: that one
        std::string name;
    };
    // From the queue of messages, as often as something has been found; last with `isOver`.
    using Tell = std::function<void(const std::vector<Found>& found, bool isOver)>;

    ~NameSearch() { Cancel(); }
    NameSearch() = default;
    NameSearch(const NameSearch&) = delete;
    NameSearch& operator=(const NameSearch&) = delete;

    // The former one ends. `matches` is called on the thread. Folders come before what is in them, names in their
    // order; folders that links lead to a second time are passed over, and so is what is hidden.
    void Begin(const std::string& top, std::function<bool(std::string_view name)> matches, Tell tell);
    void Cancel(); // nothing is told any more
    bool IsUnderWay() const { return m_pState != nullptr; }

private:
    struct State;

    static void Walk(const std::shared_ptr<State>& pState, const std::string& top);
    static bool Post(const std::shared_ptr<State>& pState, std::vector<Found> found, bool isOver);

    std::shared_ptr<State> m_pState; // NULL: nothing is looked for
};

} // namespace editor
