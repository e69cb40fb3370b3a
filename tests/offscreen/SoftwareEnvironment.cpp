#include <QByteArrayView>
#include <QtEnvironmentVariables>

#include <gtest/gtest.h>

namespace {

/// An application whose scene graph does not run on OpenGL although its display has it.
class SoftwareEnvironment : public testing::Environment
{
public:
    void SetUp() override { qputenv("QT_QUICK_BACKEND", "software"); }
};

const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new SoftwareEnvironment);

}
