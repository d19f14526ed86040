// The page: takes files, lets the worker convert them, and shows the gallery that comes back with what was found.
const byId = (id) => document.getElementById(id);
const setState = (state) => (document.documentElement.dataset.state = state);

const kMostFindings = 1000; // more in the list help nobody
const kEnds = { json: ".json", svg: ".svg", html: ".html", qgis: ".xml" };
const kTypes = { json: "application/json", svg: "image/svg+xml", html: "text/html", qgis: "application/xml" };

// What was given, by path; folders that were given as a whole; files that ended a worker.
const given = new Map();
const folders = new Set();
let left = new Map();

// The worker, its answer that is waited for, and the module, which is decoded once.
let wasm;
let worker = null;
let waiting = null;

function startWorker() {
  wasm ??= Uint8Array.from(atob(byId("module").textContent), (c) => c.charCodeAt(0));
  const address = URL.createObjectURL(new Blob([byId("worker").textContent], { type: "text/javascript" }));
  worker = new Worker(address);
  URL.revokeObjectURL(address);
  worker.onmessage = ({ data }) => waiting?.(data);
  worker.onerror = (event) => {
    event.preventDefault();
    waiting?.({ failed: -1, reason: "limit" });
  };
  worker.postMessage({ wasm });
}

function stopWorker() {
  worker?.terminate();
  worker = null;
  waiting = null;
}

function showStatus(text) {
  byId("status").textContent = text;
}

function counted(count, what) {
  return `${count} ${what}${count === 1 ? "" : "s"}`;
}

// In the order of the command line: paths of a folder by their bytes, as UTF-8.
function compareBytes(first, second) {
  const [a, b] = [first, second].map((text) => new TextEncoder().encode(text));
  const length = Math.min(a.length, b.length);
  for (let i = 0; i < length; ++i) {
    if (a[i] !== b[i]) {
      return a[i] - b[i];
    }
  }
  return a.length - b.length;
}

function add(found) {
  const inFolders = found.filter((each) => each.isInFolder);
  inFolders.sort((a, b) => compareBytes(a.name, b.name));
  for (const each of [...found.filter((each) => !each.isInFolder), ...inFolders]) {
    given.delete(each.name);
    given.set(each.name, each);
    left.delete(each.name);
    if (each.isInFolder) {
      folders.add(each.name.slice(0, each.name.indexOf("/")));
    }
  }
}

// One request: the worker's answer; null where it was cancelled. A file at which the worker ends is left out.
async function request(options) {
  for (;;) {
    const files = [...given.values()].filter((each) => !left.has(each.name));
    if (!worker) {
      startWorker();
    }
    const answer = await new Promise((resolve) => {
      waiting = (data) => {
        if (data.at !== undefined) {
          showStatus(`File ${data.at + 1} of ${files.length}: ${files[data.at].name}`);
        } else if (!data.ready) {
          resolve(data);
        }
      };
      byId("cancel").onclick = () => {
        stopWorker();
        resolve(null);
      };
      worker.postMessage({ files, further: files, folders: [...folders], options });
    });
    waiting = null;
    if (!answer || answer.result) {
      return answer?.result ?? null;
    }
    stopWorker();
    const file = files[answer.failed] ?? null;
    if (!file) {
      return { problem: "The page ran out of memory: take fewer files at once", symbols: 0, findings: [], others: 0 };
    }
    left.set(
      file.name,
      answer.reason === "unreadable"
        ? "the browser cannot read it any more; add it again"
        : "its conversion needs more memory than a browser gives; try the command line, or a part of the file"
    );
  }
}

function optionsFor(format) {
  const options = { format, tolerant: byId("tolerant").checked, faithful: byId("faithful").checked };
  return byId("encoding").value ? { ...options, encoding: byId("encoding").value } : options;
}

function placeOf(finding) {
  const places = [finding.file];
  if (finding.line !== undefined) {
    places.push(`line ${finding.line}`);
  }
  if (finding.shape !== undefined) {
    places.push(`shape ${finding.shape}`);
  }
  if (finding.path !== undefined) {
    places.push(finding.path);
  }
  return places.join(", ");
}

function showFindings(result) {
  const limits = [...left].map(([file, message]) => ({ file, severity: "error", message }));
  const findings = [...limits, ...result.findings];
  byId("messages").hidden = findings.length === 0;
  byId("messages-title").textContent =
    counted(findings.length, "message") +
    (findings.length > kMostFindings ? `, the first ${kMostFindings} of which are here` : "");
  byId("findings").replaceChildren(
    ...findings.slice(0, kMostFindings).map((finding) => {
      const item = document.createElement("li");
      item.className = finding.severity;
      const parts = [
        ["place", placeOf(finding)],
        ["severity", `${finding.severity}: `],
        ["message", finding.message + (finding.count > 1 ? ` (${finding.count} times)` : "")],
      ];
      for (const [name, text] of parts) {
        const part = document.createElement("span");
        part.className = name;
        part.textContent = text;
        item.append(part);
      }
      return item;
    })
  );
}

let isBusy = false;

async function run(format, use) {
  isBusy = true;
  setState("working");
  showStatus("Converting");
  byId("cancel").hidden = false;
  const buttons = document.querySelectorAll("#downloads button");
  buttons.forEach((button) => (button.disabled = true));
  const result = await request(optionsFor(format));
  byId("cancel").hidden = true;
  buttons.forEach((button) => (button.disabled = false));
  isBusy = false;
  if (!result) {
    showStatus("Cancelled");
    setState("cancelled");
    return;
  }
  use(result);
}

function showResult(result) {
  showFindings(result);
  const hasSymbols = result.symbols > 0;
  byId("welcome").hidden = hasSymbols;
  byId("gallery").hidden = !hasSymbols;
  byId("downloads").hidden = !hasSymbols;
  byId("start-over").hidden = false;
  byId("gallery").srcdoc = hasSymbols ? new TextDecoder().decode(result.document) : "";
  const others = result.others > 0 ? `; ${counted(result.others, "file")} of no kind that is converted` : "";
  showStatus(
    result.problem || `${counted(given.size - result.others, "file")}, ${counted(result.symbols, "symbol")}${others}`
  );
  setState("shown");
}

// What a change comes to while a conversion runs: that one is given up, and the next begins.
async function convertAll() {
  if (given.size === 0) {
    return;
  }
  if (isBusy) {
    byId("cancel").onclick?.();
    await new Promise((resolve) => setTimeout(resolve));
  }
  await run("html", showResult);
}

function nameOfDownload(format) {
  const [first] = given.keys();
  const name = given.size === 1 ? first.slice(first.lastIndexOf("/") + 1) : "";
  const point = name.lastIndexOf(".");
  return (point > 0 ? name.slice(0, point) : name || "symbols") + kEnds[format];
}

async function download(format) {
  byId("downloads").open = false;
  const before = byId("status").textContent;
  await run(format, (result) => {
    showFindings(result);
    if (result.symbols === 0) {
      showStatus(result.problem || "There is nothing to download");
      setState("shown");
      return;
    }
    const link = document.createElement("a");
    link.href = URL.createObjectURL(new Blob([result.document], { type: kTypes[format] }));
    link.download = nameOfDownload(format);
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 60000);
    showStatus(before);
    setState("shown");
  });
}

function startOver() {
  stopWorker();
  given.clear();
  folders.clear();
  left = new Map();
  byId("gallery").srcdoc = "";
  for (const id of ["gallery", "messages", "downloads", "start-over"]) {
    byId(id).hidden = true;
  }
  byId("welcome").hidden = false;
  begin();
}

// All files below what was dropped, with their paths. Browsers that have handles give files of a folder where the page is
// itself a file, too; the others have entries.
async function filesOfHandle(handle, path, isInFolder) {
  const name = path + handle.name;
  if (handle.kind === "file") {
    return [{ name, isInFolder, file: await handle.getFile() }];
  }
  const found = [];
  for await (const each of handle.values()) {
    found.push(...(await filesOfHandle(each, `${name}/`, true)));
  }
  return found;
}

async function filesOfEntry(entry, path, isInFolder) {
  const name = path + entry.name;
  if (entry.isFile) {
    return [{ name, isInFolder, file: await new Promise((resolve, reject) => entry.file(resolve, reject)) }];
  }
  const reader = entry.createReader();
  const found = [];
  for (;;) {
    // A reader gives some at a time, and none at the end.
    const some = await new Promise((resolve, reject) => reader.readEntries(resolve, reject));
    if (some.length === 0) {
      return found;
    }
    for (const each of some) {
      found.push(...(await filesOfEntry(each, `${name}/`, true)));
    }
  }
}

async function filesOfItem({ file, entry, handle }) {
  // A single file needs no more than itself.
  if (entry?.isDirectory) {
    const found = await handle?.catch(() => null);
    return found ? filesOfHandle(found, "", false) : filesOfEntry(entry, "", false);
  }
  return file ? [{ name: file.name, isInFolder: false, file }] : [];
}

async function takeDrop(data) {
  // All of it is there only until this function waits.
  const items = [...data.items].filter((item) => item.kind === "file");
  const dropped = items.map((item) => {
    const entry = item.webkitGetAsEntry?.() ?? null;
    const handle = entry?.isDirectory ? item.getAsFileSystemHandle?.() : undefined;
    return { file: item.getAsFile(), entry, handle };
  });
  const found = [];
  const unreadable = [];
  for (const each of dropped) {
    try {
      found.push(...(await filesOfItem(each)));
    } catch {
      unreadable.push(each.entry.name);
    }
  }
  if (unreadable.length > 0 && found.length === 0) {
    showStatus(`This browser does not read ${unreadable[0]} when it is dropped: choose it by the button`);
    return;
  }
  add(found);
  await convertAll();
}

function takeChosen(input) {
  const found = [...input.files].map((file) => {
    return { name: file.webkitRelativePath || file.name, isInFolder: file.webkitRelativePath !== "", file };
  });
  input.value = "";
  add(found);
  convertAll();
}

function showDragging(isDragging) {
  byId("drop-hint").hidden = !isDragging;
  document.body.classList.toggle("is-dragging", isDragging);
}

function listen() {
  window.addEventListener("dragover", (event) => {
    event.preventDefault();
    showDragging(true);
  });
  window.addEventListener("dragleave", (event) => {
    if (!event.relatedTarget) {
      showDragging(false);
    }
  });
  window.addEventListener("drop", (event) => {
    event.preventDefault();
    showDragging(false);
    takeDrop(event.dataTransfer);
  });
  byId("choose-files").onclick = () => byId("files").click();
  byId("choose-folder").onclick = () => byId("folder").click();
  byId("files").onchange = () => takeChosen(byId("files"));
  byId("folder").onchange = () => takeChosen(byId("folder"));
  byId("start-over").onclick = startOver;
  for (const id of ["tolerant", "faithful", "encoding"]) {
    byId(id).onchange = convertAll;
  }
  for (const button of document.querySelectorAll("#downloads button")) {
    button.onclick = () => download(button.dataset.format);
  }
}

// A worker is ready before the first file comes.
function begin() {
  setState("starting");
  startWorker();
  waiting = (data) => {
    waiting = null;
    showStatus(data.ready ? "Ready" : "This browser cannot run the conversions");
    setState(data.ready ? "ready" : "failed");
  };
}

listen();
begin();
