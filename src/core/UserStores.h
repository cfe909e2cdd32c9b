#pragma once

#include "ProgramFolders.h"
#include "screens/OtherStores.h"
#include "secrets/SecretStore.h"

namespace vantrell {

/// The stores in the user's folders.
class UserStores final : public OtherStores {
  public:
    /// `first` are the folders of the first store, `own` is the number of this one.
    UserStores(ProgramFolders first, int own, SecretStore& secrets);

    [[nodiscard]] int own() const override { return own_; }
    [[nodiscard]] std::vector<int> others() const override;
    [[nodiscard]] std::optional<std::string> open(int store) override;
    [[nodiscard]] std::optional<std::string> openWith(const APICredentials& key) override;

  private:
    const ProgramFolders first_;
    const int own_;
    SecretStore& secrets_;
};

}  // namespace vantrell
