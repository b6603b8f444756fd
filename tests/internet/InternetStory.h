// Stories with a web: the page that tells the address is served.
#pragma once

#include <string>

#include "tests/app/PackStory.h"

class InternetStory : public PackStory {
 protected:
  static inline const std::string Pack = "C:\\Program Files\\SK2Pack\\";
  static inline const std::string AddressPage = "http://address.orvane.example/";
  static inline const std::string Server = "http://www.orvane.example";
  static inline const Simulated::WebAnswer Failure{Simulated::Web::NotFound, {}};

  InternetStory() { machine.web.Serve(AddressPage, PageWith("203", "0", "113", "7")); }

  // The page as the maker's server writes it, for an address.
  static std::string PageWith(const std::string& first, const std::string& second,
                              const std::string& third, const std::string& fourth) {
    return "0.1.2.3.4.5.6.7.8.9.10.Your address:   " + first + "." + second + "." + third + "." +
           fourth + "   ";
  }
};
