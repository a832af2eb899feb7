#include "pattern/ActionTable.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace tessary
{

namespace
{

constexpr ActionSchema ACTIONS[] = {
    {ACTION_NONE, "none", false, "nothing"},
    {ACTION_MESSAGE_SELF, "message", false, "sends the data number to this window's screen class"},
    {ACTION_MESSAGE_CHILD1, "message-child", false, "sends it to the child window"},
    {ACTION_MESSAGE_CHILD2, "message-child-2", false,
     "sends it to child window 2, which does not receive it"},
    {ACTION_MESSAGE_PARENT, "message-parent", false, "sends it to the parent window"},
    {ACTION_OPEN_CHILD1, "open-child-1", true, "opens a pattern as child window 1"},
    {ACTION_OPEN_CHILD2, "open-child-2", true, "opens a pattern as child window 2"},
    {ACTION_OPEN_SYSTEM, "open-system", true, "opens a pattern as the system window"},
    {ACTION_OPEN_TOP, "open-application", true, "opens a pattern as the application window"},
    {ACTION_CLOSE_SELF, "close", false, "closes this window"},
    {ACTION_CLOSE_CHILD1, "close-child-1", false, "closes child window 1"},
    {ACTION_CLOSE_CHILD2, "close-child-2", false, "closes child window 2"},
    {ACTION_CLOSE_SYSTEM, "close-system", false, "closes the system window"},
    {ACTION_VERSION, "version", false, "opens the version window"},
    {ACTION_MAINTENANCE, "maintenance", false, "opens the maintenance window"},
    {ACTION_HARDCOPY, "hardcopy", false, "requests a hard copy"},
    {ACTION_STOP, "stop", false, "stops the system"},
};

template <typename Matches> const ActionSchema* Find(Matches matches)
{
    const auto found = std::find_if(std::begin(ACTIONS), std::end(ACTIONS), matches);
    return found == std::end(ACTIONS) ? nullptr : found;
}

} // namespace

SchemaTable<ActionSchema> Actions()
{
    return ACTIONS;
}

const ActionSchema* FindAction(const char* name)
{
    return Find([name](const ActionSchema& row) { return std::strcmp(row.name, name) == 0; });
}

const ActionSchema* FindAction(int code)
{
    return Find([code](const ActionSchema& row) { return row.code == code; });
}

} // namespace tessary
