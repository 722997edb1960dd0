#include "screens.h"

#include "activities/activitytable.h"
#include "activities/ordering/orderhelp.h"
#include "form1.h"
#include "menus/activitymenu.h"
#include "menus/year.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "rewards/welldone.h"
#include "runtime/forms.h"
#include "titlefrm.h"
#include "worksheets/printforms.h"

namespace {
template <class F> void add()
{
    Forms::registerForm(QString::fromLatin1(F::staticMetaObject.className()), [] { return new F; });
}
} // namespace

void registerScreens()
{
    add<Titlefrm>();
    add<Form1>();
    add<Year>();
    add<y2Intro>();
    add<y3Intro>();
    add<y4Intro>();
    add<y5Intro>();
    add<y5Intro2>();
    add<y6Intro>();
    add<Grey>();
    add<Reward>();
    add<Welldone>();
    add<y2fracprint1>();
    add<y5fracprint4>();
    add<y6fracprint3>();
    Activities::registerScreens();
    add<orderhelp>();
}
