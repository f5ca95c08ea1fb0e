// SPDX-License-Identifier: MIT
#include "camconfigtestsupport.h"
class TestFeatureDialogs : public QObject
{
    Q_OBJECT
};
QTEST_MAIN(TestFeatureDialogs)
#include "tst_featuredialogs.moc"
