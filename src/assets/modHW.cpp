#include "assets/modHW.h"

#include "assets/clsHW.h"
#include "views/lists.h"

using namespace Qt::StringLiterals;

std::span<const OpRow> modHW::handlers()
{
    static const OpRow table[] = {
        {Mode::HW, Op::ListAll, listAll<&clsHW::getAll>(Mode::HW, "All Hardware"_L1)},
        {Mode::HW, Op::Properties,
         properties({{PropertyTab::Users, readOf<&clsHW::getUser>},
                     {PropertyTab::Rooms, readOf<&clsHW::getRoom>},
                     {PropertyTab::Software, readOf<&clsHW::getSW>}})},
        {Mode::HW, Op::ViewUsers, related<&clsHW::getUser>(Mode::Users, "User(s) of Hardware "_L1)},
        {Mode::HW, Op::ViewRooms, related<&clsHW::getRoom>(Mode::Rooms, "Room(s) for Hardware "_L1)},
        {Mode::HW, Op::ViewSW, related<&clsHW::getSW>(Mode::SW, "Software for Hardware "_L1)},
    };
    return table;
}
