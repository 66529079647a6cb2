#pragma once

class QString;

/// Rewrites a composed stylesheet in place before it is kept; supplied by the host.
class IQssPreprocessor
{
public:
    virtual ~IQssPreprocessor() = default;
    virtual void Preprocess(QString& stylesheet) = 0;
};
