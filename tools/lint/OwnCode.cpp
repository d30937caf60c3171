// Lets the linter's checks look at the code of this system alone: they pass over what headers of libraries
// declare, which is most of what a file reads and was most of the linter's time.

#include <clang-tidy/ClangTidyCheck.h>
#include <clang-tidy/ClangTidyModule.h>
#include <clang-tidy/ClangTidyModuleRegistry.h>
#include <vector>

namespace {

using clang::ast_matchers::MatchFinder;

/// Finds nothing itself. The unit is met before all that it declares, and what is left of it here is what all
/// checks then meet.
class OwnCode : public clang::tidy::ClangTidyCheck
{
public:
    using ClangTidyCheck::ClangTidyCheck;

    void registerMatchers(MatchFinder* finder) override
    {
        finder->addMatcher(clang::ast_matchers::translationUnitDecl().bind("unit"), this);
    }

    void check(const MatchFinder::MatchResult& result) override
    {
        std::vector<clang::Decl*> own;
        for (clang::Decl* declared : result.Context->getTranslationUnitDecl()->decls()) {
            if (!result.SourceManager->isInSystemHeader(declared->getLocation())) {
                own.push_back(declared);
            }
        }
        result.Context->setTraversalScope(own);
    }
};

class OwnCodeModule : public clang::tidy::ClangTidyModule
{
public:
    void addCheckFactories(clang::tidy::ClangTidyCheckFactories& factories) override
    {
        factories.registerCheck<OwnCode>("varn-own-code");
    }
};

const clang::tidy::ClangTidyModuleRegistry::Add<OwnCodeModule> Registered("varn",
                                                                          "Narrows the other checks.");

} // namespace
