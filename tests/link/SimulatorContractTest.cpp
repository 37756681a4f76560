#include "SimulatedWorld.h"
#include "ZurolinkContract.h"

namespace vantrel::tests {
namespace {

class SimulatorContractWorld : public ContractWorld {
  public:
    Zurolink& library() override { return simulated_.library; }
    void put(const std::string& name, const std::string& bytes) override {
        simulated_.program.write("first/" + name, bytes);
    }
    std::string bytes(const std::string& name) override {
        return simulated_.program.read("first/" + name);
    }
    bool has(const std::string& name) override { return simulated_.program.has("first/" + name); }

  private:
    SimulatedWorld simulated_;
};

INSTANTIATE_TEST_SUITE_P(Libraries, ZurolinkContract,
                         testing::Values(ContractWorldKind{
                             "Simulator",
                             [] { return std::make_unique<SimulatorContractWorld>(); }}),
                         rowName);

} // namespace
} // namespace vantrel::tests
