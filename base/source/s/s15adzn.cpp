// erfc(x + xl) in the x87 extended format (zeb_ext.h), for a caller that
// holds a zeb::ext::Precision: the kernel of erfc, erf and the normal
// distribution functions, which hand it an argument with its low part xl
// (|xl| at most half an ulp of x) and round the value once.
#include <cmath>
#include <cstddef>
#include <iterator>

#include "s15aezn.h"
#include "zeb_ext.h"
#include "zeb_s_ib.h"

namespace {

using zeb::ext::ld;

// exp(A^2) erfc(A): minimax rational of degree 8/8 in A on [0.46875, 4.0],
// fitted by tools/refdata/fit_s_first.py; max relative error 2.8e-19 with the
// pairs as stored rounded to the x87 extended format. Coefficients from the
// highest power. Numerator:
constexpr double kErfcM_P[9][2] = {
    {1.7500137319606875e-11, 5.446947286658974e-28},
    {0.000458563708160669, -4.914973789345528e-21},
    {0.007220085767501093, -3.463867058806082e-19},
    {0.05374064022961048, 1.1049353243817467e-18},
    {0.24272592292766662, -3.356317853374802e-20},
    {0.716836758494622, -2.0615796612989334e-18},
    {1.391524977527407, 1.0759395568278071e-16},
    {1.6670836249811258, -1.7756215952423277e-17},
    {0.9999999999953246, 2.7269937950728916e-17},
};
// Denominator:
constexpr double kErfcM_Q[9][2] = {
    {0.0008127845757325758, -2.9508210986191257e-20},
    {0.012797230661917637, 5.30777267714621e-20},
    {0.09565979589365717, -4.573356794360278e-18},
    {0.4366123157260417, -5.2441039754568594e-18},
    {1.3178397061836646, -2.5283643756791135e-17},
    {2.674709142496686, 7.40514456354351e-17},
    {3.545866955077553, 2.0674317206338867e-16},
    {2.7954627919948427, 1.77478033690277e-17},
    {1.0, 0.0},
};

// BEGIN GENERATED tail rational
// R(u) = (1/sqrt(pi) - A exp(A^2) erfc(A)) / u: minimax rational of degree 6/6
// in u = 1/A^2 on [0.0, 0.0625], fitted by tools/refdata/gen_s15adz.py
// (Remez exchange of fit_s_first.py); max
// erfc-relative error 5.6e-20 with the pairs as stored rounded to the x87
// extended format. Coefficients from the highest power. Numerator:
constexpr double kErfcL_P[7][2] = {
    {26.7339191522557, 5.358058476398011e-16},
    {701.4369681542622, 1.785980212872865e-14},
    {1111.7416463210507, -9.018040845519894e-14},
    {548.4757274922513, 5.27403659152807e-14},
    {110.55622870957698, -9.916066406492366e-16},
    {9.459777907500063, -5.388982130888072e-16},
    {0.28209479177387814, -1.0719740224304636e-18},
};
// Denominator:
constexpr double kErfcL_Q[7][2] = {
    {2147.7591678780295, 1.224964632356281e-13},
    {6829.523018428971, 1.6603652562682313e-13},
    {6419.776539038046, -1.8855196926132453e-13},
    {2487.1122112498456, 1.2502763790470614e-13},
    {440.7126859783564, 6.74108236721465e-15},
    {35.03403956171879, 4.0883722840012743e-16},
    {1.0, 0.0},
};
// END GENERATED tail rational

// BEGIN GENERATED exp tables
// exp(-k^2/256), k = 0 .. 425: mpmath at 40 digits rounded to the 64-bit
// significand, within 2^-65 relative (tools/refdata/gen_s15adz.py).
constexpr long double kExpY2[426] = {
    0x8000000000000000p-63L, 0xff007fd55ffdde39p-64L, 0xfc07f55ff77d2494p-64L,
    0xf728078f76cb38c1p-64L, 0xf07d5fde38151e73p-64L, 0xe82e923096157743p-64L,
    0xde6aa9dcebdb100bp-64L, 0xd3676f4fb8233ed1p-64L, 0xc75f7cf564105743p-64L,
    0xba903bcc873ce7e7p-64L, 0xad37e030a19e3f45p-64L, 0x9f937e1d211d0b16p-64L,
    0x91dd49860ab457fep-64L, 0x844b13b092b97b93p-64L, 0xee1a240886d56f4fp-65L,
    0xd499ebee9107dcdbp-65L, 0xbc5ab1b16779be35p-65L, 0xa592f34b58f4fa6ap-65L,
    0x906a8e21e05732cdp-65L, 0xf9f6b28eca70dc83p-66L, 0xd6a45e12bb8e3b4ep-66L,
    0xb6e0982a1053ca13p-66L, 0x9a99d30acf861ecbp-66L, 0x81adefc00815db5dp-66L,
    0xd7db8c7422bfba74p-67L, 0xb2412bf4a54839a9p-67L, 0x920e7b1ec4c57e8fp-67L,
    0xed7c7dd4f17b80dfp-68L, 0xbf928d58d7bbdbabp-68L, 0x99552a487e3e4fa6p-68L,
    0xf38aaf83a802c7b7p-69L, 0xbfe80194debf3f17p-69L, 0x960aadc109e7a3bfp-69L,
    0xe8cb48b3e23d2eb0p-70L, 0xb33020b20c591af4p-70L, 0x88da4297554c1fc7p-70L,
    0xcf6980608450b462p-71L, 0x9bf3d6e231d364b7p-71L, 0xe8b1ff6ed5916577p-72L,
    0xac401384c9b0fd58p-72L, 0xfd074ac3575e35cap-73L, 0xb865db86d1113c38p-73L,
    0x85562e23776daed3p-73L, 0xbf54270bfa7495dfp-74L, 0x883411121beb2ac0p-74L,
    0xc06988e693f2a094p-75L, 0x86d9e3ab09abacf4p-75L, 0xbb8c690d7a751497p-76L,
    0x8167912932a2cc8bp-76L, 0xb12ee9ddf25b0b8dp-77L, 0xf0b6ff5fd621d90bp-78L,
    0xa23da5d2c44f95dfp-78L, 0xd8ff527ddc38d275p-79L, 0x8ffce39102b64919p-79L,
    0xbd9926958d9fd3ecp-80L, 0xf7b6aee098799c1ap-81L, 0xa08fd86d03b89b2ap-81L,
    0xce865883c7dad7a3p-82L, 0x83c9f7e4f77c6aa7p-82L, 0xa6e319f625a5f515p-83L,
    0xd1b0257ed84946a7p-84L, 0x82b536bbdeb3e1a7p-84L, 0xa1af14832bb69356p-85L,
    0xc671c6e2d72ee997p-86L, 0xf1aaddd7742e56d3p-87L, 0x9201dbccb12999e5p-87L,
    0xaf0d636f6f7e4f20p-88L, 0xd03df193a0c1d8e5p-89L, 0xf5cbea57e1de98e1p-90L,
    0x8feed8db66f9e4fcp-90L, 0xa7419166de07fd67p-91L, 0xc0d89756bf3926b9p-92L,
    0xdc9ef0f13e51d696p-93L, 0xfa6e8a2bbf021d35p-94L, 0x8d0781f88366c3bdp-94L,
    0x9d9a8d80f4999f7cp-95L, 0xaec1613670e0443fp-96L, 0xc044037232fee531p-97L,
    0xd1e263a4fd082f54p-98L, 0xe355a1fc25750213p-99L, 0xf451bd22fe196e82p-100L,
    0x8243cd494c35c382p-100L, 0x89d3abe1aaf90ce7p-101L, 0x90b1668b55c57354p-102L,
    0x96b81373055aef41p-103L, 0x9bc63b193fad18b3p-104L, 0x9fbf0ca2334c2241p-105L,
    0xa28b6ea8b308b6bap-106L, 0xa41ade808520d97bp-107L, 0xa46412239724d2fdp-108L,
    0xa36554209583fe0ep-109L, 0xa12494947133dd29p-110L, 0x9daf2e435ca1fce5p-111L,
    0x9919630124757d13p-112L, 0x937d967b871a8830p-113L, 0x8cfb51df2020b869p-114L,
    0x85b61d7eef031c03p-115L, 0xfba87ee9cbe013dap-117L, 0xeafade0e12040b54p-118L,
    0xd9b318e7f6fea877p-119L, 0xc81ed764787d80f9p-120L, 0xb6877d8d8e4ecff0p-121L,
    0xa530539fe94c9846p-122L, 0x94550fddc2d05e97p-123L, 0x8428ca2dec8fdd89p-124L,
    0xe9aab6c6f04c159dp-126L, 0xccf648a2de4caec9p-127L, 0xb26267c7cf0936dep-128L,
    0x9a0b7f32911b6d74p-129L, 0x83fdbe0d7818bde8p-130L, 0xe06de669f56605efp-132L,
    0xbd5155fd4813c7acp-133L, 0x9e74dcef3c7c2856p-134L, 0x83980cd71a4c0995p-135L,
    0xd8dea36c2f3180bap-137L, 0xb14ff28f2d637b08p-138L, 0x8fd7922248e77a60p-139L,
    0xe79040fbe6ffa8cap-141L, 0xb8f0b0ee0f771f91p-142L, 0x928dfe23fa9cf5efp-143L,
    0xe6770b300cc79cd1p-145L, 0xb3cc90732ec36e45p-146L, 0x8b2e17de7119c220p-147L,
    0xd5cc484cbb8bf7a5p-149L, 0xa2eead4cf651c04ap-150L, 0xf6677687f731f130p-152L,
    0xb8dea7d47c64bbccp-153L, 0x899f775b11119cfcp-154L, 0xcb4ea3990f265d60p-156L,
    0x95007bd340cdc421p-157L, 0xd8b45905db3c3895p-159L, 0x9c5bbd3c1ddae4a0p-160L,
    0xdfe0c2d4250f954fp-162L, 0x9f07a5ceae980c5bp-163L, 0xe02c43efec1a8423p-165L,
    0x9cc546428fd4de55p-166L, 0xd98fe44c652af032p-168L, 0x95c9e3855b84ba3bp-169L,
    0xcca66084ad041752p-171L, 0x8ab6ded819729fb9p-172L, 0xba94d2f9af3396a5p-174L,
    0xf90359148345de16p-176L, 0xa4dfd7563c5ccf8cp-177L, 0xd8a19eb46102da62p-179L,
    0x8d35d756da7e8589p-180L, 0xb6a98566eb36a714p-182L, 0xea7181652d1a690cp-184L,
    0x9547ebc3c15e5f8fp-185L, 0xbca0f3fa0bf6d6b4p-187L, 0xec7e37a79f02ac1ap-189L,
    0x931904d3673f6af2p-190L, 0xb5907b432cc02d65p-192L, 0xde5ce9b73080643dp-194L,
    0x871addaf3e6f24cbp-195L, 0xa2e605b6985cf49cp-197L, 0xc2e19bc9e5c5630ap-199L,
    0xe7543d016809cab3p-201L, 0x883a717c040eb526p-202L, 0x9f330e27f7ac44f1p-204L,
    0xb898a1bd28764c2ep-206L, 0xd460f8a7157ae57ap-208L, 0xf270f8093720af02p-210L,
    0x894d7dd4939f46fcp-211L, 0x9a4ede1268a4163bp-213L, 0xac11ef55a55bec85p-215L,
    0xbe622515fbd47fe9p-217L, 0xd101ab1203633050p-219L, 0xe3aa6e8f57b5d101p-221L,
    0xf60f988c9abaebeap-223L, 0x83efb8bd11bea47fp-224L, 0x8c62d03199304407p-226L,
    0x9436d88bd6238628p-228L, 0x9b42e3ad0e269453p-230L, 0xa160b06686f4e4d8p-232L,
    0xa66e025d2fb882edp-234L, 0xaa4de010267ff5c3p-236L, 0xace9a6ec52a39b64p-238L,
    0xae31e71634af22afp-240L, 0xae1efb464c3cd438p-242L, 0xacb1549204aedacap-244L,
    0xa9f17608351c8a4bp-246L, 0xa5efa05e15f06c94p-248L, 0xa0c3323b29aad94dp-250L,
    0x9a89c5b35bdb995ep-252L, 0x936616e8c3a020cap-254L, 0x8b7ec268de220164p-256L,
    0x82fceb7bbba689b9p-258L, 0xf415b66513997858p-261L, 0xe1a5511e557a0b8cp-263L,
    0xcef9f16a6b5c59efp-265L, 0xbc5fc7b85ec8af96p-267L, 0xaa1c11cd0eda2eebp-269L,
    0x986bac991ccc5fd3p-271L, 0x87821768dc35b3fep-273L, 0xef11d14f488a1eabp-276L,
    0xd13f5d2745403a0ap-278L, 0xb5b862a59c9ecc20p-280L, 0x9c96102bf17cd4a5p-282L,
    0x85e0e0f2fbbf0990p-284L, 0xe3255877b5741eb2p-287L, 0xbf31e1c1ba6f58aep-289L,
    0x9fae76867af4a268p-291L, 0x84530e8f7272f5aep-293L, 0xd99a13ce405f02b6p-296L,
    0xb186af21969e33a1p-298L, 0x8fb43b05998792ffp-300L, 0xe6d743402bfc3a6cp-303L,
    0xb7f6dc45dfbed04bp-305L, 0x91774b2fdfe8d828p-307L, 0xe4421be80f14d281p-310L,
    0xb1b1387bc222f586p-312L, 0x89406e394d58a91ep-314L, 0xd26135d9bd05e1fap-317L,
    0x9ffb053d76fefff7p-319L, 0xf16ab570c6b5c626p-322L, 0xb4bc7339f81f8c65p-324L,
    0x86413419686ca337p-326L, 0xc5e70480df03b74ep-329L, 0x90ba20e410b85419p-331L,
    0xd20831c79bb9890cp-334L, 0x9737587245ca7183p-336L, 0xd80c0660adb09bb7p-339L,
    0x99229f28cf43c8c8p-341L, 0xd7659276fcd09d11p-344L, 0x964eb01c7ac684fdp-346L,
    0xd02432c2156040b8p-349L, 0x8efe1ea30f317b33p-351L, 0xc2f139ccd6ac5b83p-354L,
    0x83d93cc161277803p-356L, 0xb0f6791e19a3b1abp-359L, 0xebaa4c0e0757cbb0p-362L,
    0x9bb2f8deda00e988p-364L, 0xcc221f2d5976f298p-367L, 0x84c694825ad8dfc1p-369L,
    0xab6150086e56c84bp-372L, 0xdb7cbf5b0251c591p-375L, 0x8b7496379f7e85b1p-377L,
    0xafd50c71ea3bd113p-380L, 0xdbf8fd08a9beb1a7p-383L, 0x8886b19cec8db42cp-385L,
    0xa826b922698e3e63p-388L, 0xcd7d89c72569007cp-391L, 0xf92aaadf9c0b711bp-394L,
    0x95e33474440e83a0p-396L, 0xb2ed8adcb4d7b93cp-399L, 0xd3eebdd1eeb60f5bp-402L,
    0xf9125e5611148bfap-405L, 0x91387ac5f379ea7ep-407L, 0xa805eed158100240p-410L,
    0xc0e4af9b7941b54dp-413L, 0xdbb8a837e9735abap-416L, 0xf8553ab352bad076p-419L,
    0x8b3e37f34b5b3006p-421L, 0x9aef6175a97403a2p-424L, 0xab0dcf7ca7ef153ep-427L,
    0xbb614f8696c84337p-430L, 0xcbaacab56a74dfddp-433L, 0xdba5ab280bec380fp-436L,
    0xeb099acf73d9b2ccp-439L, 0xf98c8dd6c30e172bp-442L, 0x837282a718404de8p-444L,
    0x896639195e167441p-447L, 0x8e80cec609e1be37p-450L, 0x92a57c409d84a52dp-453L,
    0x95bc5b95c414083ap-456L, 0x97b34d570f078f5fp-459L, 0x987ea950f7d11fa9p-462L,
    0x9819b18554959135p-465L, 0x9686c13aa72bbe03p-468L, 0x93cf359427ee516fp-471L,
    0x900310f72cc22361p-474L, 0x8b385e3cbdc37192p-477L, 0x858a5c0fe328fb83p-480L,
    0xfe30f7500f7ffb61p-484L, 0xf00a803904dfa916p-487L, 0xe0ea19794f3d0ca0p-490L,
    0xd119e2349083c692p-493L, 0xc0e301a259072e98p-496L, 0xb08b8747a0eab2dcp-499L,
    0xa05490d33792a4a5p-502L, 0x9078c568f6184387p-505L, 0x812b3070e0032b94p-508L,
    0xe52d00569c7b7aa1p-512L, 0xc9b94d7eb4eb30d2p-515L, 0xb02daf1810d5e6d2p-518L,
    0x98abacf3daecb686p-521L, 0x8345181b3e69127dp-524L, 0xdffb3c777cd18284p-528L,
    0xbd99513c3aa0d63ep-531L, 0x9f3ecedf17c2473ep-534L, 0x84b5d8c36030a53dp-537L,
    0xdb78ecddb15da125p-541L, 0xb410ed32e36d9128p-544L, 0x9295e868db05746dp-547L,
    0xeccd9de7eb2df1a9p-551L, 0xbdc8da99b6a36bc8p-554L, 0x96eb0a2262543ecbp-557L,
    0xee279226b2da4824p-561L, 0xba723a2621f12307p-564L, 0x90d4328290818f32p-567L,
    0xdf4054667d055e74p-571L, 0xaabae05f00b0098dp-574L, 0x818c70ce948da44cp-577L,
    0xc3122c67cb6e4030p-581L, 0x91b93a9791e6056cp-584L, 0xd80661ac7a1cd240p-588L,
    0x9edff43c2c0888c3p-591L, 0xe7de8dcd6f505a8ep-595L, 0xa7e23e6831d10e17p-598L,
    0xf138022cc8913bbfp-602L, 0xabf207581a10be06p-605L, 0xf3397447f907108cp-609L,
    0xaaafe98a0c5f9931p-612L, 0xedb388b5e57fdbc6p-616L, 0xa4399bee074211fbp-619L,
    0xe12807b34e383b5dp-623L, 0x99256c581ec3f863p-626L, 0xceb636573e444e71p-630L,
    0x8a6bb84c6e493645p-633L, 0xb7f07413e05256eap-637L, 0xf286241e026e6873p-641L,
    0x9ea3c6c5089b1d88p-644L, 0xcdec7a071b7c66fbp-648L, 0x849c490f1f8b49f9p-651L,
    0xa977adf09c6b4b67p-655L, 0xd6e20b5aaac5d4adp-659L, 0x872caafecba0785fp-662L,
    0xa8be148f64dd2ff4p-666L, 0xd101da1661ca88eap-670L, 0x806ebe0d48fa8c2cp-673L,
    0x9c9cc7efc2b607bdp-677L, 0xbd7d36dc5b929366p-681L, 0xe37bb5b808aadec7p-685L,
    0x877c3139870570cdp-688L, 0xa0211c231ae0a59ep-692L, 0xbbc88e97e730110ap-696L,
    0xda7fe72bb960356cp-700L, 0xfc42fa0316737db2p-704L, 0x907cac17bf4e8e36p-707L,
    0xa43a00af5bf6a400p-711L, 0xb935d6dc8d6d1fe7p-715L, 0xcf3fede5da1ee900p-719L,
    0xe61b64955e338283p-723L, 0xfd7f3a03b3c9abf1p-727L, 0x8a8bae1cf148657cp-730L,
    0x9643237e42f19d53p-734L, 0xa1b3968d57ce5147p-738L, 0xaca84f197ee1af44p-742L,
    0xb6ebc94d4b5a546ep-746L, 0xc0495fc4648ad02fp-750L, 0xc88f07bca4fbf9dap-754L,
    0xcf8f0b3486364f8ap-758L, 0xd521abc9f1df6ea5p-762L, 0xd92699783d915771p-766L,
    0xdb8629f46ee02aefp-770L, 0xdc32404ba08032acp-774L, 0xdb26d86639bb7c97p-778L,
    0xd86a2eea2f38c60cp-782L, 0xd40c835333a25f44p-786L, 0xce27779ada8c4358p-790L,
    0xc6dd16123995f8abp-794L, 0xbe568abd977c1b34p-798L, 0xb4c2a14918ac42a5p-802L,
    0xaa541b4e51d0a2c9p-806L, 0x9f3ff3f9718a411dp-810L, 0x93bba61ecc3edcd5p-814L,
    0x87fb888ea44c0aa0p-818L, 0xf862a428abafd340p-823L, 0xe115a694031de98fp-827L,
    0xca61e11405dd0811p-831L, 0xb48dc433df14b878p-835L, 0x9fd378fa4aada3d4p-839L,
    0x8c607debf42cdb67p-843L, 0xf4ab8b5e2a968f5ep-848L, 0xd3908e4a998d3a2fp-852L,
    0xb583d5e2f5de2311p-856L, 0x9a8580439e010e88p-860L, 0x8284c216e131d282p-864L,
    0xdac5c88e1d611136p-869L, 0xb5ec9a2ae4f83975p-873L, 0x961ae3276fa373e7p-877L,
    0xf5c64cc71f8d0cf2p-882L, 0xc7a4d133f55ab981p-886L, 0xa0e8d78ade22daf8p-890L,
    0x80ae5d103fed47d3p-894L, 0xcc36b49b98750f99p-899L, 0xa0c7adb1aee3d722p-903L,
    0xfb32b202737b562bp-908L, 0xc2b487373619f9ecp-912L, 0x95be26ec2390487fp-916L,
    0xe488c606973cdd71p-921L, 0xad08f32812ef1e0fp-925L, 0x81fe799f959337ffp-929L,
    0xc1cc61e2fe7e2619p-934L, 0x8f55e55f74d8ccf4p-938L, 0xd260114a922503d7p-943L,
    0x992f0734994986fdp-947L, 0xdd5808d4a3bd28c0p-952L, 0x9eabf6c787e12ca8p-956L,
    0xe1b82386538a1ad9p-961L, 0x9f4cb70097f71300p-965L, 0xdf1969102fcc4de3p-970L,
    0x9b0272224d94238ep-974L, 0xd5b9ab513ad5c3fep-979L, 0x9231bbec125b3ff2p-983L,
    0xc672202b1c04796bp-988L, 0x85a35fcfcaafbb25p-992L, 0xb296f29c41af2fd1p-997L,
    0xeccdd32d0e48fbe3p-1002L, 0x9bc6812ee56749d6p-1006L, 0xcb59cc460d5640bfp-1011L,
    0x83b1f66df7b1a845p-1015L, 0xa9403919fea176d9p-1020L, 0xd7d2dbc44979bbddp-1025L,
    0x8888fbf59236a83ap-1029L, 0xab67fe8397479006p-1034L, 0xd58246e283760023p-1039L,
    0x83f11a34bd564223p-1043L, 0xa1cd823d7e154190p-1048L, 0xc4e0b18572ffdc9ep-1053L,
    0xedb11a7fb94485a3p-1058L, 0x8e5debe67f81e5d3p-1062L, 0xa9373b97e72b1676p-1067L,
    0xc790169af70e65d3p-1072L, 0xe98556330c0bdf9bp-1077L, 0x8790bae281734254p-1081L,
};

// exp(-j/64), j = 0 .. 213: mpmath at 40 digits rounded to the 64-bit
// significand, within 2^-65 relative (tools/refdata/gen_s15adz.py).
constexpr long double kExpD[214] = {
    0x8000000000000000p-63L, 0xfc07f55ff77d2494p-64L, 0xf81fab5445aebc8ap-64L,
    0xf446e357f67dfd8ep-64L, 0xf07d5fde38151e73p-64L, 0xecc2e44e820d18c4p-64L,
    0xe9173500cbe0159bp-64L, 0xe57a1739d263ec95p-64L, 0xe1eb51276c110c3cp-64L,
    0xde6aa9dcebdb100bp-64L, 0xdaf7e94f9261313dp-64L, 0xd792d8530d3da531p-64L,
    0xd43b4096043bde03p-64L, 0xd0f0ec9eb43e8079p-64L, 0xcdb3a7c7979ebd5dp-64L,
    0xca833e3c1bcf93e9p-64L, 0xc75f7cf564105743p-64L, 0xc44831b718faa1dap-64L,
    0xc13d2b0c44b8af4ap-64L, 0xbe3e38443bb1dfefp-64L, 0xbb4b296f917bf09ap-64L,
    0xb863cf5d19e0354fp-64L, 0xb587fb96f5c4e713p-64L, 0xb2b7805fabcb5328p-64L,
    0xaff230af4c747554p-64L, 0xad37e030a19e3f45p-64L, 0xaa88633e692c84acp-64L,
    0xa7e38ee09ab13659p-64L, 0xa54938c9b7e846b1p-64L, 0xa2b9375427dc3ef6p-64L,
    0xa033617f9c893773p-64L, 0x9db78eee82d48c8cp-64L, 0x9b4597e37cb04ff4p-64L,
    0x98dd553ee54217fdp-64L, 0x967ea07c5ee56f55p-64L, 0x942953b06ae2c504p-64L,
    0x91dd49860ab457fep-64L, 0x8f9a5d3c6ab3325ep-64L, 0x8d606aa49606deddp-64L,
    0x8b2f4e1f33b31766p-64L, 0x8906e49a4c9f3d59p-64L, 0x86e70b8f1a73fbd8p-64L,
    0x84cfa0ffdf2c01bfp-64L, 0x82c08375c5354c27p-64L, 0x80b991fec8010361p-64L,
    0xfd75585749c0e65bp-65L, 0xf987641ba81c57c1p-65L, 0xf5a9086b1385b9a9p-65L,
    0xf1da075f7e6bf297p-65L, 0xee1a240886d56f4fp-65L, 0xea692267a754ef29p-65L,
    0xe6c6c76c771c2d61p-65L, 0xe332d8f0f8f06821p-65L, 0xdfad1db5f8c5b458p-65L,
    0xdc355d5f77c6f7b3p-65L, 0xd8cb6071269148f0p-65L, 0xd56ef04aed6a5a01p-65L,
    0xd21fd725823a6f09p-65L, 0xcedde00f0c13419ap-65L, 0xcba8d6e7d40e0852p-65L,
    0xc880885f034bb070p-65L, 0xc564c1ef6de32926p-65L, 0xc25551dc6a8a6f41p-65L,
    0xbf52072eb6c7d378p-65L, 0xbc5ab1b16779be35p-65L, 0xb96f21eee583f912p-65L,
    0xb68f292df6724898p-65L, 0xb3ba996ed0e0e038p-65L, 0xb0f145683c7bf6b8p-65L,
    0xae330084bd687ae1p-65L, 0xab7f9edfcae89ea3p-65L, 0xa8d6f543110fa2dep-65L,
    0xa638d923bd58feb0p-65L, 0xa3a5209fd5f7aba1p-65L, 0xa11ba27b9bb30b4cp-65L,
    0x9e9c361ef627842ep-65L, 0x9c26b392ea41996bp-65L, 0x99baf37f1acae4fep-65L,
    0x9758cf2752e0fcf5p-65L, 0x950020691a2eeaedp-65L, 0x92b0c1b952c27939p-65L,
    0x906a8e21e05732cdp-65L, 0x8e2d613f58f18a77p-65L, 0x8bf9173ebea532d6p-65L,
    0x89cd8cdb42624359p-65L, 0x87aa9f5c0fa556d7p-65L, 0x85902c9220e75e98p-65L,
    0x837e12d61caa70a6p-65L, 0x817431063b0161f5p-65L, 0xfee4cd0866e1098fp-66L,
    0xfaf12666660cd21ap-66L, 0xf70d2eebb518007dp-66L, 0xf338a85889580eedp-66L,
    0xef73556427e4343ep-66L, 0xebbcf9b9110499eep-66L, 0xe81559f13ad55983p-66L,
    0xe47c3b925ae0eb23p-66L, 0xe0f1650a3e769eafp-66L, 0xdd749dab3182a486p-66L,
    0xda05ada873ae1326p-66L, 0xd6a45e12bb8e3b4ep-66L, 0xd35078d4c7ab7d69p-66L,
    0xd009c8affd28b042p-66L, 0xccd0193913d50357p-66L, 0xc9a336d4cf731d7cp-66L,
    0xc682eeb4c6010c17p-66L, 0xc36f0ed432cd671ep-66L, 0xc06765f4d626daf3p-66L,
    0xbd6bc39be17412bfp-66L, 0xba7bf80eef82c4a8p-66L, 0xb797d45108dd646fp-66L,
    0xb4bf2a1fb3f7c1b2p-66L, 0xb1f1cbf011039441p-66L, 0xaf2f8cec013eb3aap-66L,
    0xac7840ef598d6e8fp-66L, 0xa9cbbc8520342b3cp-66L, 0xa729d4e4d5842cd8p-66L,
    0xa4925fefc75007bdp-66L, 0xa205342e6efcfc15p-66L, 0x9f8228cdda07178dp-66L,
    0x9d09159d1ccea624p-66L, 0x9a99d30acf861ecbp-66L, 0x98343a2295185a6cp-66L,
    0x95d8248aabdf8389p-66L, 0x93856c818805c9bfp-66L, 0x913becdb77697eebp-66L,
    0x8efb81004ededc15p-66L, 0x8cc404e920aa4209p-66L, 0x8a95551dfc0e5cffp-66L,
    0x886f4eb3b5ca2421p-66L, 0x8651cf49b9633c8ap-66L, 0x843cb507e319d43ap-66L,
    0x822fde9c62639417p-66L, 0x802b2b39a4cbd074p-66L, 0xfc5cf528922f4bf1p-67L,
    0xf87359c2351a69ffp-67L, 0xf49945a6287b5f60p-67L, 0xf0ce7b32d864dea7p-67L,
    0xed12bdbb4cbb86fep-67L, 0xe965d1835e615409p-67L, 0xe5c77bbbfb6e31acp-67L,
    0xe237827f7a39f6eap-67L, 0xdeb5accdfafcf842p-67L, 0xdb41c289d7cd4b32p-67L,
    0xd7db8c7422bfba74p-67L, 0xd482d42931f44cb2p-67L, 0xd137641d39571e38p-67L,
    0xcdf90798f1df2962p-67L, 0xcac78ab64e15716fp-67L, 0xc7a2ba5d3bafd7dep-67L,
    0xc48a6440720bb5d1p-67L, 0xc17e56da4d5520bep-67L, 0xbe7e6169b6288cb6p-67L,
    0xbb8a53ef157d4619p-67L, 0xb8a1ff2954a8010ap-67L, 0xb5c53492e9457ea5p-67L,
    0xb2f3c65eecde0652p-67L, 0xb02d877640132d35p-67L, 0xad724b74b92a1e55p-67L,
    0xaac1e6a65dc54bedp-67L, 0xa81c2e04a7a1253bp-67L, 0xa580f733d4281c64p-67L,
    0xa2f018803eb2f572p-67L, 0xa06968dbc54b0241p-67L, 0x9decbfdb37c49734p-67L,
    0x9b79f5b3d108aa37p-67L, 0x9910e338ba653067p-67L, 0x96b161d898bc6f33p-67L,
    0x945b4b9b236c13b7p-67L, 0x920e7b1ec4c57e8fp-67L, 0x8fcacb9643f14b72p-67L,
    0x8d9018c67818b2a6p-67L, 0x8b5e3f0404aff69cp-67L, 0x89351b311ebda247p-67L,
    0x87148abb5afaec58p-67L, 0x84fc6b9984aa214cp-67L, 0x82ec9c497d00816fp-67L,
    0x80e4fbce2301895bp-67L, 0xfdcad35a875444dbp-68L, 0xf9db8bdb24957b6ap-68L,
    0xf5fbe22951dfbdc0p-68L, 0xf22b984a21723af0p-68L, 0xee6a7138a3fe437cp-68L,
    0xeab830e218533ea1p-68L, 0xe7149c222a2d95bfp-68L, 0xe37f78bf3fec826cp-68L,
    0xdff88d66d6f39a40p-68L, 0xdc7fa1a9ee7dde2cp-68L, 0xd9147df980a8fa41p-68L,
    0xd5b6eba309804641p-68L, 0xd266b4cd1bcff777p-68L, 0xcf23a4740389d0acp-68L,
    0xcbed86667585764ap-68L, 0xc8c427424c676260p-68L, 0xc5a75471527a46bcp-68L,
    0xc296dc2618477a61p-68L, 0xbf928d58d7bbdbabp-68L, 0xbc9a37c463a7591dp-68L,
    0xb9adabe32366189ap-68L, 0xb6ccbaec1a82f75ap-68L, 0xb3f736cffc23dc7ep-68L,
    0xb12cf2364a1114d3p-68L, 0xae6dc07a7f29a7f5p-68L, 0xabb975a945174ddap-68L,
    0xa90fe67db5155fd4p-68L, 0xa670e85ea39ed12cp-68L, 0xa3dc515bf6d7ea12p-68L,
    0xa151f82c07892b2bp-68L, 0x9ed1b4290c816951p-68L, 0x9c5b5d4e9035d753p-68L,
    0x99eecc36f0775795p-68L, 0x978bda18e81510a0p-68L, 0x953260c52244deaap-68L,
    0x92e23aa3d7aad84ep-68L,
};

// G(r) of exp(-r) = 1 - r + r^2 G(r): minimax polynomial of degree 4 in r on
// [-0.0078125, 0.0078125], Remez exchange in tools/refdata/gen_s15adz.py; max
// exp-relative error 9.8e-21 with the coefficients rounded to double.
// Coefficients from the highest power.
constexpr double kExpG[5] = {
    0.001388885066756006,
    -0.008333351361569237,
    0.0416666666671158,
    -0.16666666666628613,
    0.5,
};
// END GENERATED exp tables

// 2/sqrt(pi) (mpmath, 50 digits).
constexpr ld k2RsqrtPi = 1.1283791670955125738961589031215452L;
// 1/sqrt(pi).
constexpr ld kRsqrtPi = 0.56418958354775628694807945156077259L;

// The table of pairs reversed in order, for the polynomial x^(N-1) p(1/x).
template <std::size_t N>
struct Rev {
  double c[N][2];
  constexpr explicit Rev(const double (&p)[N][2]) : c{} {
    for (std::size_t i = 0; i < N; ++i) {
      c[i][0] = p[N - 1 - i][0];
      c[i][1] = p[N - 1 - i][1];
    }
  }
};
constexpr Rev kLP(kErfcL_P);
constexpr Rev kLQ(kErfcL_Q);

// The pair hi + lo rounded to the extended format, formed at run time from
// two double loads: the empty asm keeps the compiler from folding it into an
// extended constant, whose 80-bit load costs more than the two.
inline ld pair(const double (&c)[2]) {
  ld v = c[0];
  __asm__("" : "+t"(v));
  return v + c[1];
}

// The polynomial of a table of pairs, from the highest power, by Horner's rule
// (one chain keeps P and Q together within the eight x87 registers).
template <std::size_t N>
inline ld horner_pairs(const double (&c)[N][2], ld t) {
  ld v = pair(c[0]);
  for (std::size_t i = 1; i < N; ++i) v = v * t + pair(c[i]);
  return v;
}

}  // namespace

// Ranges of Cody's approximations, in A = |x|:
//   A <= 0.46875:     1 - erf(x), erf from s15aezn.h;
//   0.46875 < A <= 4: exp(-A^2) F(A), F = P(A)/Q(A);
//   4 < A < 26.6:     exp(-A^2) F(A), F = (1/sqrt(pi) - R(1/A^2)/A^2) / A;
//   x >= 26.6:        0;  x <= -6.5: 2;
// for other x < 0 the value is 2 - erfc(A). exp(-A^2) is split as
// exp(-Y^2) exp(-D), Y = trunc(16 A)/16, D = (A - Y)(A + Y): A - Y and
// A + Y are exact and their product, below 3.33, is rounded once, to 2^-64.
// exp(-Y^2) is kExpY2[16 Y]; D = j/64 + r with j the integer nearest to 64 D
// (from D in double, so |r| <= 1/128 + 2^-50 and r exact in the extended
// format), exp(-j/64) is kExpD[j] and exp(-r) = 1 - r + r^2 G(r).
long double s15adzn(double x, double xl) {
  if (!(x < 26.6)) return x >= 26.6 ? 0.0L : x;  // x may be NaN
  if (x <= -6.5) return 2.0L;
  const double a = std::fabs(x);
  if (a <= 0.46875) {
    // Below 2^-56 erfc(x + xl) lies within 2^-55.8 of 1, inside half an ulp
    // of 1 on either side, and its half as near 1/2: the callers round 1 to
    // the double they would round the value to.
    if (a < 0x1p-56) return 1.0L;
    // erf(x + xl) = erf(x) + xl (2/sqrt pi) exp(-x^2), the exponential by
    // 1 - w + w^2/2, within 2e-3 here.
    const double w = x * x;
    const double c = xl * (1.1283791670955126 * (1.0 - w * (1.0 - 0.5 * w)));
    return 1.0L - (zeb::s15ae::erf_small(x) + c);
  }
  const ld al = x < 0.0 ? -xl : xl;
  const int k = static_cast<int>(16.0 * a);
  const double y = 0.0625 * k;
  const double amy = a - y;
  const ld d = amy * (static_cast<ld>(a) + y);
  // D in double only picks j (an integer conversion of the extended format
  // would switch the x87 rounding mode): 64 D rounded by the addition of
  // 1.5 2^52.
  const double dd = amy * (a + y);
  const double jd = (dd * 64.0 + 0x1.8p52) - 0x1.8p52;
  const ld r = d - jd * 0.015625;
  // r^2 G(r) is below 2^-15 and is formed in double, from r rounded to
  // double (D in double would be 2^-52 off, which r^2 G would pass on times
  // 2r): its errors stay below 2^-66 of exp(-r), and the polynomial runs on
  // the SSE unit beside the x87 work.
  const double rd = static_cast<double>(r);
  double g = kExpG[0];
  for (std::size_t i = 1; i < std::size(kExpG); ++i) g = g * rd + kExpG[i];
  const double w = (rd * rd) * g;
  const ld t = kExpY2[k] * kExpD[static_cast<int>(jd)];
  const ld er = (1.0L - r) + w;
  // F = exp(A^2) erfc(A).
  ld f;
  if (a <= 4.0) {
    f = horner_pairs(kErfcM_P, a) / horner_pairs(kErfcM_Q, a);
  } else {
    // R(u)/A^2 = R(u) u, u = 1/A^2, is P(u) u / Q(u), or with the
    // polynomials reversed in s = A^2, p(s) / (s q(s)), degree 6 over 7; F
    // is then (q(s) s / sqrt(pi) - p(s)) / (q(s) s A), one division.
    const ld s2 = static_cast<ld>(a) * a;
    const ld qs = horner_pairs(kLQ.c, s2) * s2;
    f = (qs * kRsqrtPi - horner_pairs(kLP.c, s2)) / (qs * a);
  }
  // The low part of the argument: d erfc(A)/dA = -(2/sqrt pi) exp(-A^2), so
  // erfc(A + al) = exp(-A^2) (F - (2/sqrt pi) al) to first order.
  const ld v = (t * er) * (f - k2RsqrtPi * al);
  return x < 0.0 ? 2.0L - v : v;
}
