// Single-precision constants of the formulas, each beside the double that it is.
#include "Simple.hpp"

#include <gtest/gtest.h>

using socle::simple;

static_assert(simple(1e-10f) == 1.000000013351432e-10);
static_assert(simple(1e-06f) == 9.999999974752427e-07);
static_assert(simple(1e-05f) == 9.999999747378752e-6);
static_assert(simple(0.0002f) == 0.00019999999494757503);
static_assert(simple(0.0003f) == 0.0003000000142492354);
static_assert(simple(0.001f) == 0.0010000000474974513);
static_assert(simple(0.00175f) == 0.0017500000540167093);
static_assert(simple(0.002f) == 0.0020000000949949026);
static_assert(simple(0.0035f) == 0.0035000001080334187);
static_assert(simple(0.007f) == 0.007000000216066837);
static_assert(simple(0.012f) == 0.012000000104308128);
static_assert(simple(0.021f) == 0.020999999716877937);
static_assert(simple(0.02f / 0.9f) == 0.02222222276031971);
static_assert(simple(0.025f) == 0.02500000037252903);
static_assert(simple(0.03f) == 0.029999999329447746);
static_assert(simple(0.04f) == 0.03999999910593033);
static_assert(simple(0.046f) == 0.04600000008940697);
static_assert(simple(0.05f) == 0.05000000074505806);
static_assert(simple(0.075f) == 0.07500000298023224);
static_assert(simple(0.085f) == 0.08500000089406967);
static_assert(simple(0.1f) == 0.10000000149011612);
static_assert(simple(0.11f) == 0.10999999940395355);
static_assert(simple(0.12f) == 0.11999999731779099);
static_assert(simple(0.13f) == 0.12999999523162842);
static_assert(simple(0.2f) == 0.20000000298023224);
static_assert(simple(0.21f) == 0.20999999344348907);
static_assert(simple(0.3f) == 0.30000001192092896);
static_assert(simple(1.0f / 3.0f) == 0.3333333432674408);
static_assert(simple(0.37f) == 0.3700000047683716);
static_assert(simple(0.38f) == 0.3799999952316284);
static_assert(simple(0.4f) == 0.4000000059604645);
static_assert(simple(0.45f) == 0.44999998807907104);
static_assert(simple(0.53f) == 0.5299999713897705);
static_assert(simple(0.55f) == 0.550000011920929);
static_assert(simple(0.6f) == 0.6000000238418579);
static_assert(simple(2.0f / 3.0f) == 0.6666666865348816);
static_assert(simple(0.7f) == 0.699999988079071);
static_assert(simple(0.77f) == 0.7699999809265137);
static_assert(simple(0.7853982f) == 0.7853981852531433);
static_assert(simple(0.8f) == 0.800000011920929);
static_assert(simple(0.85f) == 0.8500000238418579);
static_assert(simple(0.87f) == 0.8700000047683716);
static_assert(simple(0.9f) == 0.8999999761581421);
static_assert(simple(0.95f) == 0.949999988079071);
static_assert(simple(1.05f) == 1.0499999523162842);
static_assert(simple(1.08f) == 1.0800000429153442);
static_assert(simple(1.1f) == 1.100000023841858);
static_assert(simple(1.15f) == 1.149999976158142);
static_assert(simple(1.2f) == 1.2000000476837158);
static_assert(simple(1.3f) == 1.2999999523162842);
static_assert(simple(1.35f) == 1.350000023841858);
static_assert(simple(1.4f) == 1.399999976158142);
static_assert(simple(1.4175f) == 1.4175000190734863);
static_assert(simple(1.55f) == 1.5499999523162842);
static_assert(simple(2.12f) == 2.119999885559082);
static_assert(simple(2.2f) == 2.200000047683716);
static_assert(simple(2.6f) == 2.5999999046325684);
static_assert(simple(2.8f) == 2.799999952316284);
static_assert(simple(3.1f) == 3.0999999046325684);
static_assert(simple(3.14156f) == 3.1415600776672363);
static_assert(simple(3.1415927f) == 3.1415927410125732);
static_assert(simple(3.6f) == 3.5999999046325684);
static_assert(simple(16.8f) == 16.799999237060547);
static_assert(simple(23.4f) == 23.399999618530273);

// The nearest single to 1.1e-10 is another number than this product of a single and a double.
static_assert(simple(1.1f) * 1e-10 == 1.1000000238418579e-10);

TEST(Simple, EstLaValeurSimpleElargie) { EXPECT_NE(simple(0.1f), 0.1); }
