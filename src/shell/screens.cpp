#include "screens.h"

#include "form1.h"
#include "menus/year.h"
#include "rewards/grey.h"
#include "rewards/reward.h"
#include "runtime/forms.h"
#include "titlefrm.h"

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
    add<Grey>();
    add<Reward>();
}
