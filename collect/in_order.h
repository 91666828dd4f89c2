#ifndef COLLECT_IN_ORDER_H_
#define COLLECT_IN_ORDER_H_

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace survey {

// Does jobs 0 to `jobs` - 1, several beside each other, and hands over their results one after the
// other in the order of the jobs. No more results wait than there are workers, however many jobs
// there are.
//
// `make_worker` makes what does the jobs of one thread: worker(job) gives a result. `take` is given
// each result, never two at a time. What either throws ends the work and is thrown.
template <typename MakeWorker, typename Take>
void DoInOrder(std::size_t jobs, unsigned workers, MakeWorker make_worker, Take take) {
  std::mutex mutex;
  std::condition_variable turn_changed;
  std::size_t next = 0;
  std::size_t turn = 0;
  std::exception_ptr failure;

  const auto take_in_turn = [&](std::size_t job, auto result) {
    std::unique_lock lock(mutex);
    turn_changed.wait(lock, [&] { return turn == job || failure; });
    if (failure) return;
    take(std::move(result));
    ++turn;
    turn_changed.notify_all();
  };
  const auto fail = [&] {
    const std::lock_guard lock(mutex);
    if (!failure) failure = std::current_exception();
    turn_changed.notify_all();
  };
  const auto take_job = [&] {
    const std::lock_guard lock(mutex);
    return failure ? jobs : next < jobs ? next++ : jobs;
  };
  const auto work = [&] {
    try {
      auto worker = make_worker();
      for (std::size_t job = take_job(); job < jobs; job = take_job()) {
        take_in_turn(job, worker(job));
      }
    } catch (...) {
      fail();
    }
  };
  {
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < workers; ++i) threads.emplace_back(work);
  }
  if (failure) std::rethrow_exception(failure);
}

}  // namespace survey

#endif  // COLLECT_IN_ORDER_H_
