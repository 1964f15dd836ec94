#pragma once

#include "childelements.h"
#include "jobattributes.h"
#include "jobwords.h"

namespace cabledoc {

/// Returns the details of the test in an element, which was done at the given time. The function returns the fields of
/// an element, and their defaults if the element is null.
template <typename Element, typename Read>
TestDetails readTestDetails(const Element &test, const QString &time, Read read)
{
    const Element element = test.firstChildElement(words::TestDetails);
    const StoredTestDetails stored = read(testDetailsAttributes(), element);
    // A program that does not know details leaves those of the test before.
    if (stored.time != time)
        return TestDetails();
    TestDetailsFields details = stored;
    for (const Element &parameter : ChildElements(element)) {
        if (parameter.tagName() == words::TestParameter)
            details.parameters.append(read(testParameterAttributes(), parameter));
    }
    return TestDetails(details);
}

} // namespace cabledoc
