#include <gtest/gtest.h>

#include "frame/CResDll.h"
#include "support/TestSupport.h"
#include "system/modWeb.h"

namespace {

TEST(WebPageAddress, NamesThePageAndTheLanguageInTheFixedOrder) {
  frame::LanguageLibrary().DllName(testing_support::DistFolder() + "LANG_ESP.DLL");
  EXPECT_EQ(integration::WebPageAddress(integration::kHelpPage, "c1"),
            "http://www.morvane.example/cgi-bin/morvane/redir.cgi?redir=c1&url=3&lang=es");
  frame::ReleaseLibraries();
  EXPECT_EQ(integration::WebPageAddress(integration::kUpdates, ""),
            "http://www.morvane.example/cgi-bin/morvane/redir.cgi?redir=&url=1&lang=")
      << "a missing language code leaves the value empty";
}

TEST(NewClientParameter, IsFreshForEachRequest) {
  const std::string first = integration::NewClientParameter();
  EXPECT_EQ(first.size(), 32u);
  EXPECT_NE(first, integration::NewClientParameter());
}

}  // namespace
