// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is wrong with the layout of a page: texts that lie over each other or leave their drawing, parts that are wider
// than the page, and texts too pale to read. Gives lines that each name a fault.
(() => {
    const faults = [];
    const Slack = 1;  // pixels that boxes may share, since letters keep away from the edges of theirs

    function describe(node) {
        const owner = node.nodeType === Node.TEXT_NODE ? node.parentElement : node;
        return `<${owner.localName}> "${node.textContent.trim().slice(0, 40)}"`;
    }

    function textsOf(root) {
        const walker = document.createTreeWalker(root, NodeFilter.SHOW_TEXT);
        const texts = [];
        while (walker.nextNode()) {
            const owner = walker.currentNode.parentElement;
            if (walker.currentNode.data.trim() && !owner.closest("svg, style, head")) texts.push(walker.currentNode);
        }
        return texts;
    }

    function linesOf(node) {
        const range = document.createRange();
        range.selectNodeContents(node);
        return [...range.getClientRects()].map((box) => ({box, node}));
    }

    /// Pairs that share more than Slack both ways.
    function findOverlaps(boxes) {
        boxes.sort((a, b) => a.box.top - b.box.top);
        for (let i = 0; i < boxes.length; ++i) {
            for (let j = i + 1; j < boxes.length && boxes[j].box.top < boxes[i].box.bottom - Slack; ++j) {
                const [a, b] = [boxes[i], boxes[j]];
                if (a.node === b.node) continue;
                const wide = Math.min(a.box.right, b.box.right) - Math.max(a.box.left, b.box.left);
                const high = Math.min(a.box.bottom, b.box.bottom) - Math.max(a.box.top, b.box.top);
                if (wide > Slack && high > Slack) faults.push(`${describe(a.node)} lies over ${describe(b.node)}`);
            }
        }
    }

    /// Labels that rise side by side: what counts is how far apart their base lines are.
    function findRisingOverlaps(labels) {
        const lines = labels.map((label) => {
            const {a, b, e, f} = label.getCTM();
            const length = Math.hypot(a, b);
            return {label, height: label.getBBox().height * length, distance: (e * b - f * a) / length};
        });
        lines.sort((one, other) => one.distance - other.distance);
        for (let i = 1; i < lines.length; ++i) {
            if (Math.abs(lines[i].distance - lines[i - 1].distance) < lines[i].height - 2 * Slack)
                faults.push(`${describe(lines[i].label)} lies over ${describe(lines[i - 1].label)}`);
        }
    }

    function checkDrawing(drawing) {
        const edge = drawing.getBoundingClientRect();
        const texts = [...drawing.querySelectorAll("text")];
        const rising = texts.filter((text) => text.hasAttribute("transform"));
        const level = texts.filter((text) => !text.hasAttribute("transform"));
        findOverlaps(level.map((node) => ({node, box: node.getBoundingClientRect()})));
        findRisingOverlaps(rising);
        for (const text of texts) {
            const box = text.getBoundingClientRect();
            if (box.left < edge.left - Slack || box.right > edge.right + Slack || box.top < edge.top - Slack ||
                box.bottom > edge.bottom + Slack)
                faults.push(`${describe(text)} leaves its drawing`);
        }
    }

    function checkWidths() {
        const width = document.documentElement.clientWidth;
        if (document.documentElement.scrollWidth > width) faults.push("the page scrolls sideways");
        for (const part of document.querySelectorAll("body *")) {
            if (part.closest("svg") || part.parentElement.closest(".scroll")) continue;
            if (part.getBoundingClientRect().right > width + Slack) faults.push(`${describe(part)} is wider than the page`);
        }
    }

    function luminance(colour) {
        const [r, g, b] = colour.match(/[\d.]+/g).slice(0, 3).map((value) => {
            const part = value / 255;
            return part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4;
        });
        return 0.2126 * r + 0.7152 * g + 0.0722 * b;
    }

    /// Texts against the ground of the page want a contrast of 4.5 to 1; those in cells of drawings against their cell.
    function checkContrast() {
        const ground = luminance(getComputedStyle(document.documentElement).backgroundColor);
        const seen = new Set();
        function check(node, colour, behind) {
            const [dark, bright] = [luminance(colour), behind].sort((a, b) => a - b);
            const name = `${node.localName}.${node.getAttribute("class")} ${colour}`;
            if ((bright + 0.05) / (dark + 0.05) < 4.5 && !seen.has(name)) {
                seen.add(name);
                faults.push(`${describe(node)} is too pale: ${colour}`);
            }
        }
        for (const text of textsOf(document.body))
            check(text.parentElement, getComputedStyle(text.parentElement).color, ground);
        for (const text of document.querySelectorAll("svg text")) {
            const cell = text.matches(".cell, .under") ? cellBehind(text) : null;
            check(text, getComputedStyle(text).fill, cell ? luminance(getComputedStyle(cell).fill) : ground);
        }
    }

    function cellBehind(text) {
        let before = text.previousElementSibling;
        while (before && before.localName !== "rect") before = before.previousElementSibling;
        return before;
    }

    findOverlaps(textsOf(document.body).flatMap(linesOf));
    for (const drawing of document.querySelectorAll("svg")) checkDrawing(drawing);
    checkWidths();
    checkContrast();
    return faults;
})()
