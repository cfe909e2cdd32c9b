#include "sample/Rates.h"

#include <array>
#include <string_view>

namespace vantrell::sample {

namespace {

struct Rate {
    std::string_view currency;
    std::string_view perDollar;  ///< as it is to stand in the answer, to the last digit
};

constexpr std::array rates{
    Rate{"USD", "1"},       Rate{"AED", "3.6725"},  Rate{"ARS", "1415.5"},  Rate{"AUD", "1.5287"},
    Rate{"BGN", "1.6874"},  Rate{"BHD", "0.376"},   Rate{"BRL", "5.3416"},  Rate{"CAD", "1.3641"},
    Rate{"CHF", "0.8059"},  Rate{"CLP", "932.41"},  Rate{"CNY", "7.1138"},  Rate{"COP", "3824.6"},
    Rate{"CZK", "20.9437"}, Rate{"DKK", "6.4412"},  Rate{"EGP", "47.41"},   Rate{"EUR", "0.8628"},
    Rate{"GBP", "0.7594"},  Rate{"HKD", "7.7743"},  Rate{"HUF", "329.58"},  Rate{"IDR", "16682.4"},
    Rate{"ILS", "3.2541"},  Rate{"INR", "88.6702"}, Rate{"ISK", "126.93"},  Rate{"JPY", "154.276"},
    Rate{"KRW", "1462.87"}, Rate{"KWD", "0.3068"},  Rate{"KZT", "523.19"},  Rate{"MAD", "9.2514"},
    Rate{"MXN", "18.3725"}, Rate{"MYR", "4.1379"},  Rate{"NGN", "1441.33"}, Rate{"NOK", "10.0918"},
    Rate{"NZD", "1.7662"},  Rate{"PEN", "3.3725"},  Rate{"PHP", "58.8731"}, Rate{"PKR", "281.46"},
    Rate{"PLN", "3.6563"},  Rate{"QAR", "3.64"},    Rate{"RON", "4.3877"},  Rate{"RUB", "80.9275"},
    Rate{"SAR", "3.75"},    Rate{"SEK", "9.4586"},  Rate{"SGD", "1.3022"},  Rate{"THB", "32.4108"},
    Rate{"TRY", "42.2937"}, Rate{"TWD", "31.1504"}, Rate{"TZS", "2446.75"}, Rate{"UAH", "42.0583"},
    Rate{"VND", "26327.4"}, Rate{"ZAR", "17.1185"},
};

}  // namespace

std::string ratesBody() {
    std::string body = R"({"result":"success","base_code":"USD","rates":{)";
    std::string_view separator;
    for (const auto& [currency, perDollar] : rates) {
        body.append(separator).append(1, '"').append(currency).append("\":").append(perDollar);
        separator = ",";
    }
    return body + "}}";
}

}  // namespace vantrell::sample
