#include "support/FakeZurolink.h"

#include "ZurolinkContract.h"

namespace vantrel::tests {
namespace {

class FakeContractWorld : public ContractWorld {
  public:
    FakeContractWorld() {
        library_.at(otherAddress);
        library_.at(address);
        library_.at("COM1");
    }
    Zurolink& library() override { return library_; }
    void put(const std::string& name, const std::string& bytes) override {
        library_.at(address).put(name, bytes);
    }
    std::string bytes(const std::string& name) override { return library_.at(address).bytes(name); }
    bool has(const std::string& name) override { return library_.at(address).has(name); }

  private:
    FakeZurolink library_;
};

INSTANTIATE_TEST_SUITE_P(Libraries, ZurolinkContract,
                         testing::Values(ContractWorldKind{
                             "Fake", [] { return std::make_unique<FakeContractWorld>(); }}),
                         rowName);

} // namespace
} // namespace vantrel::tests
