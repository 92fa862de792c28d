// Reading that may take long without keeping a window from living.
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <utility>

namespace zandor {

// Runs `work` on a thread of its own and hands its result to `done` on the owner's. An owner that goes away
// is not called; its work ends by itself, whenever that is, so `work` must hold all it needs.
template <class Result>
void readInBackground(QObject* owner, std::function<Result()> work, std::function<void(Result)> done) {
    constexpr int lookEvery = 10; // ms
    std::packaged_task<Result()> task(std::move(work));
    auto result = std::make_shared<std::future<Result>>(task.get_future());
    std::thread(std::move(task)).detach();
    auto* poll = new QTimer(owner);
    QObject::connect(poll, &QTimer::timeout, owner, [poll, result, done = std::move(done)] {
        if (result->wait_for(std::chrono::seconds(0)) != std::future_status::ready)
            return;
        poll->stop();
        poll->deleteLater();
        done(result->get());
    });
    poll->start(lookEvery);
}

} // namespace zandor
